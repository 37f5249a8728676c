// Draws the program's artwork and writes it as Windows 98 image files.
//
//   tl99_artgen OUTPUT_DIR           writes every file into OUTPUT_DIR
//   tl99_artgen --verify DIR         draws everything again and compares it
//                                    with the files in DIR; exits 1 on any
//                                    difference or missing file
#include "art.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace {

namespace fs = std::filesystem;

artgen::Bytes readFile(const fs::path& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

int write(const fs::path& dir) {
  fs::create_directories(dir);
  for (const artgen::OutputFile& file : artgen::allFiles()) {
    std::ofstream out(dir / file.name, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(file.bytes.data()),
              static_cast<std::streamsize>(file.bytes.size()));
    if (!out) {
      std::fprintf(stderr, "cannot write %s\n", (dir / file.name).string().c_str());
      return 1;
    }
  }
  return 0;
}

int verify(const fs::path& dir) {
  int problems = 0, files = 0;
  for (const artgen::OutputFile& file : artgen::allFiles()) {
    ++files;
    const fs::path path = dir / file.name;
    if (!fs::exists(path)) {
      std::printf("missing: %s\n", path.string().c_str());
      ++problems;
    } else if (readFile(path) != file.bytes) {
      std::printf("differs: %s\n", path.string().c_str());
      ++problems;
    }
  }
  std::printf("%d files checked, %d problems\n", files, problems);
  return problems == 0 ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
  try {
    if (argc == 2 && std::string(argv[1]) != "--verify") return write(argv[1]);
    if (argc == 3 && std::string(argv[1]) == "--verify") return verify(argv[2]);
    std::fprintf(stderr, "usage: tl99_artgen OUTPUT_DIR\n       tl99_artgen --verify DIR\n");
    return 2;
  } catch (const std::exception& e) {
    std::fprintf(stderr, "tl99_artgen: %s\n", e.what());
    return 1;
  }
}
