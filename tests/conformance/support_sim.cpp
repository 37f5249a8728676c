// The conformance suite's machine: a fresh simulated Windows 98 per test.
#include "tests/conformance/support.h"

#include "platform/platform.h"
#include "platform/sim/sim_control.h"

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

namespace conformance {

void prepareMachine() {
  static const std::string root = [] {
    char pattern[] = "/tmp/tl99-sim-XXXXXX";
    return std::string(::mkdtemp(pattern));
  }();
  std::filesystem::remove_all(root);
  platform::sim::reset(root);
  platform::CreateDirectoryA("C:\\WINDOWS");
  platform::CreateDirectoryA("C:\\WINDOWS\\TEMP");
  platform::CreateDirectoryA(kScratch);
}

std::string hostPath(const std::string& windowsPath) {
  return platform::sim::hostPath(windowsPath);
}

void writeFile(const std::string& windowsPath, const std::string& content) {
  std::FILE* file = std::fopen(hostPath(windowsPath).c_str(), "wb");
  if (!file) return;
  std::fwrite(content.data(), 1, content.size(), file);
  std::fclose(file);
}

std::string readFile(const std::string& windowsPath) {
  std::string content;
  std::FILE* file = std::fopen(hostPath(windowsPath).c_str(), "rb");
  if (!file) return "<missing>";
  char block[4096];
  std::size_t n = 0;
  while ((n = std::fread(block, 1, sizeof block, file)) > 0)
    content.append(block, n);
  std::fclose(file);
  return content;
}

void holdOpen(const std::string& windowsPath) { platform::sim::setFileInUse(windowsPath, true); }

void answerNextMessageBox(int button) { platform::sim::queueMessageBoxAnswer(button); }

SeenMessageBox lastMessageBox() {
  const auto& boxes = platform::sim::shownMessageBoxes();
  if (boxes.empty()) return {};
  const auto& box = boxes.back();
  return {true, box.text, box.caption, box.type & 0x0F, (box.type & 0xF0) == 0x30};
}

} // namespace conformance
