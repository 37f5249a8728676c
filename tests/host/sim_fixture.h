// A fresh simulated Windows 98 for each host test, in its own host folder.
#pragma once

#include "platform/platform.h"
#include "platform/sim/sim_control.h"
#include "runtime/basic_error.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <functional>
#include <string>

// The number of the run-time error a statement raises, 0 when it raises none.
inline int errorOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const runtime::RuntimeError& error) {
    return error.number();
  }
  return 0;
}

// Gives the machine a TCP/IP adapter with its MTU (NetTrans\0000, MaxMTU
// "576"), as every Windows 98 with dial-up networking has. Without one the
// Internet Connection page's mtu_opt fails at start-up, which ends a start
// that doesn't resume (one whose scanreg.ini already carries the marker).
inline void installNetworkAdapter() {
  platform::sim::storeRawValue(platform::kLocalMachine,
                               "System\\CurrentControlSet\\Services\\Class\\NetTrans\\0000",
                               "MaxMTU", platform::kRegSz, {'5', '7', '6', 0});
}

class SimMachineTest : public ::testing::Test {
protected:
  void SetUp() override {
    char pattern[] = "/tmp/tl99-host-XXXXXX";
    root_ = ::mkdtemp(pattern);
    platform::sim::reset(root_);
    platform::CreateDirectoryA("C:\\WINDOWS");
    platform::CreateDirectoryA("C:\\WINDOWS\\TEMP");
    runtime::Err().clear();
  }
  void TearDown() override { std::filesystem::remove_all(root_); }

  std::string root_;
};
