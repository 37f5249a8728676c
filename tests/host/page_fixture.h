// A started program on a fresh simulated Windows 98, with helpers to reach a
// page's buttons, the registry's stored bytes and the simulated files.
#pragma once

#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "tests/host/page_buttons.h"
#include "tests/host/sim_fixture.h"

#include <fstream>
#include <memory>
#include <sstream>
#include <string>

class PageTest : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    runtime::Application::instance().reset();
    runtime::Application::instance().onEnd = [this] { ended_ = true; };
    platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  frame::PageSet& pages() { return *program_->fmain.pages; }
  runtime::PictureBox& button(const std::string& name) { return pageButton(program_->fmain, name); }
  void selectTab(int tab) { program_->fmain.MainTab->userSelectTab(tab); }

  // The stored type and bytes of a value, "<missing>" when it can't be read.
  static std::string storedBytes(platform::RegKey hive, const std::string& key, const char* name,
                                 platform::Dword* type = nullptr) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return "<missing>";
    std::uint8_t data[4096];
    platform::Dword size = sizeof data, storedType = 0;
    const auto rc = platform::RegQueryValueExA(handle, name, &storedType, data, &size);
    platform::RegCloseKey(handle);
    if (type) *type = storedType;
    return rc == 0 ? std::string(reinterpret_cast<char*>(data), size) : "<missing>";
  }
  static bool keyExists(platform::RegKey hive, const std::string& key) {
    platform::RegKey handle = 0;
    const bool found = platform::RegOpenKeyA(hive, key.c_str(), &handle) == 0;
    platform::RegCloseKey(handle);
    return found;
  }
  static void writeFile(const std::string& windowsPath, const std::string& content = "x") {
    std::ofstream(platform::sim::hostPath(windowsPath), std::ios::binary) << content;
  }
  static bool exists(const std::string& windowsPath) {
    return platform::GetFileAttributesA(windowsPath.c_str()) != platform::kInvalidFileAttributes;
  }
  static void makeFolder(const std::string& windowsPath) {
    ASSERT_TRUE(platform::CreateDirectoryA(windowsPath.c_str())) << windowsPath;
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};
