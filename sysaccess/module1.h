// The writer for binary registry data and its encoders. Unlike the everyday
// routines these don't skip errors: a run-time error passes to the caller.
#pragma once

#include "runtime/value.h"
#include "sysaccess/ellreg.h"

#include <cstdint>
#include <string>

namespace sysaccess {

// Creates or opens the key and stores the value's bytes with the given type;
// true when stored. The key handle is neither flushed nor closed.
bool SetRegValueEx(const Hive& hive, const std::string& keyPath, const std::string& className,
                   const std::string& valueName, const runtime::Value& value,
                   const std::int32_t& valueType);

// The data as one character a byte, followed by one NUL: type 4 the number's
// four bytes low first, type 5 high first, any other type the value's text.
std::string EncodeRegData(const runtime::Value& value, const std::int32_t& valueType);

std::string DwordToBytes(const std::int32_t& number);
std::string DwordToBytesBE(const std::int32_t& number);

} // namespace sysaccess
