// The whole program on a fresh simulated Windows 98, for the tests of the
// Troubleshooting, OEM Info and Software Components pages.
#pragma once

#include "frame/page_set.h"
#include "frame/program.h"
#include "runtime/application.h"
#include "sysaccess/ellreg.h"
#include "tests/host/page_buttons.h"
#include "tests/host/sim_fixture.h"

#include <fstream>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

class ProgramTest : public SimMachineTest {
protected:
  void SetUp() override {
    SimMachineTest::SetUp();
    installNetworkAdapter(); // a Windows 98 with TCP/IP, as the Internet page expects
    runtime::Application::instance().reset();
    runtime::Application::instance().onEnd = [this] { ended_ = true; };
    platform::CreateDirectoryA("C:\\WINDOWS\\SYSTEM");
    platform::CreateDirectoryA("C:\\WINDOWS\\SYSBCKUP");
    // A marked scanreg.ini, so that start-up leaves it alone.
    writeFile("C:\\WINDOWS\\scanreg.ini",
              "[-=Note=-]\r\nAltered by Tweakloom 99=Please do not edit manually\r\n");
  }
  void start() {
    program_ = std::make_unique<frame::Program>();
    program_->start();
  }
  frame::FMain& fmain() { return program_->fmain; }
  runtime::PictureBox& button(const std::string& name) { return pageButton(fmain(), name); }
  void showTab(int tab) { fmain().MainTab->userSelectTab(tab); }
  // A user's click on a page button: its tab comes to the front first.
  void pressOnTab(int tab, const std::string& name) {
    showTab(tab);
    button(name).userClick();
  }

  static void writeFile(const std::string& windowsPath, const std::string& content) {
    std::ofstream(platform::sim::hostPath(windowsPath), std::ios::binary) << content;
  }
  static std::string readFile(const std::string& windowsPath) {
    std::ifstream in(platform::sim::hostPath(windowsPath), std::ios::binary);
    if (!in) return "<missing>";
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }
  static void storeText(platform::RegKey hive, const std::string& key, const std::string& name,
                        const std::string& text) {
    std::vector<std::uint8_t> bytes(text.begin(), text.end());
    bytes.push_back(0);
    platform::sim::storeRawValue(hive, key, name, platform::kRegSz, bytes);
  }
  static void storeDword(platform::RegKey hive, const std::string& key, const std::string& name,
                         std::uint32_t number) {
    platform::sim::storeRawValue(
        hive, key, name, platform::kRegDword,
        {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8),
         static_cast<std::uint8_t>(number >> 16), static_cast<std::uint8_t>(number >> 24)});
  }
  // Type and bytes of a stored value, "<missing>" when there is none.
  static std::string stored(platform::RegKey hive, const std::string& key,
                            const std::string& name) {
    platform::RegKey handle = 0;
    if (platform::RegOpenKeyA(hive, key.c_str(), &handle) != 0) return "<missing>";
    std::uint8_t data[4096];
    platform::Dword size = sizeof data, type = 0;
    const auto rc = platform::RegQueryValueExA(handle, name.c_str(), &type, data, &size);
    platform::RegCloseKey(handle);
    if (rc != 0) return "<missing>";
    std::string text = std::to_string(type) + ":";
    static const char* digits = "0123456789ABCDEF";
    for (platform::Dword i = 0; i < size; ++i) {
      text += digits[data[i] >> 4];
      text += digits[data[i] & 15];
    }
    return text;
  }
  static bool keyExists(platform::RegKey hive, const std::string& key) {
    platform::RegKey handle = 0;
    const bool exists = platform::RegOpenKeyA(hive, key.c_str(), &handle) == 0;
    platform::RegCloseKey(handle);
    return exists;
  }
  static std::string lastMessage() {
    const auto& boxes = platform::sim::shownMessageBoxes();
    return boxes.empty() ? std::string() : boxes.back().text;
  }

  std::unique_ptr<frame::Program> program_;
  bool ended_ = false;
};
