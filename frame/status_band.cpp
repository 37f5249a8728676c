// The status band: the version line, the logged-in line with the up-time,
// and the memory figures, refreshed at every tick of Timer1.
#include "frame/fmain.h"

#include "platform/platform.h"
#include "runtime/basic_math.h"
#include "runtime/text_functions.h"

namespace frame {

using namespace runtime;

namespace {
constexpr std::uint32_t kMegabyte = 1024 * 1024;
} // namespace

std::int16_t FMain::reflab() {
  lblWininfO->setCaption("");
  platform::VersionInfo version;
  platform::GetVersionExA(&version);
  // The prefix by platform: 1 is Windows 9x, 2 Windows NT, anything else none.
  const char* const prefix = version.platformId == 1   ? "OS Version: "
                             : version.platformId == 2 ? "Windows NT - "
                                                       : "";
  std::string caption(prefix);
  const auto build = version.build & 0xFFFF;
  caption += std::to_string(version.major) + "." + std::to_string(version.minor) + "." +
             std::to_string(build);
  lblWininfO->setCaption(caption);

  std::string buffer(50, '\0');
  platform::Dword size = 49;
  if (platform::GetUserNameA(buffer.data(), &size))
    user_name = Left(buffer, static_cast<std::int64_t>(size) - 1);
  else
    user_name = std::string("Anonymous");
  return build == 1998 ? 1 : 0;
}

void FMain::Upd() {
  // The memory figures of the system, by the property numbers the program
  // reads: 7 total physical memory, 8 free physical memory, 10 virtual memory
  // (the address space of a program), 19 swap size (the page file's total).
  const platform::MemoryStatus memory = platform::GlobalMemoryStatus();
  const struct {
    TextBox* box;
    std::uint32_t bytes;
  } rows[] = {{txtPhysicalMemory, memory.totalPhys},
              {txtFreePhysical, memory.availPhys},
              {txtVirtualMemory, memory.totalVirtual},
              {txtSwapSize, memory.totalPageFile}};
  for (const auto& row : rows)
    row.box->setText(std::to_string(static_cast<std::int32_t>(row.bytes / kMegabyte)) + " Mb");
}

void FMain::Timer1_Timer() {
  Upd();
  // The tick count is taken as signed: after 24.8 days the line runs negative.
  uptime_seconds = static_cast<std::int32_t>(platform::GetTickCount()) / 1000.0;
  uptime_minutes = toDouble(uptime_seconds) / 60.0;
  uptime_seconds = modulo(uptime_seconds, 60);
  // Rounded, not cut: the hours go up after 30 minutes.
  uptime_hours = toInteger(toDouble(uptime_minutes) / 60.0);
  uptime_minutes = modulo(uptime_minutes, 60);
  const auto pad = [](const Value& number) {
    return Value(std::string(toDouble(number) > 9 ? "" : "0"));
  };
  hour_pad = pad(uptime_hours);
  minute_pad = pad(uptime_minutes);
  second_pad = pad(uptime_seconds);
  status_line = toText(user_name) + " is logged in for " + toText(hour_pad) + toText(uptime_hours) +
                "." + toText(minute_pad) + toText(uptime_minutes) + "." + toText(second_pad) +
                toText(uptime_seconds);
  tip_text->setCaption(toText(status_line));
}

} // namespace frame
