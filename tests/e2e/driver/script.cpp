#include "tests/e2e/driver/script.h"

namespace drive {
namespace {
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }
} // namespace

bool splitWords(const std::string& line, Args* words, std::string* error) {
  words->clear();
  std::size_t i = 0;
  while (true) {
    while (i < line.size() && isBlank(line[i]))
      ++i;
    if (i == line.size()) return true;
    std::string word;
    if (line[i] == '"') {
      ++i;
      while (true) {
        if (i == line.size()) {
          *error = "unterminated quote";
          return false;
        }
        if (line[i] == '"') {
          if (i + 1 < line.size() && line[i + 1] == '"') {
            word += '"';
            i += 2;
            continue;
          }
          ++i;
          break;
        }
        word += line[i++];
      }
    } else {
      while (i < line.size() && !isBlank(line[i]))
        word += line[i++];
    }
    words->push_back(word);
  }
}

std::string joinWords(const Args& words) {
  std::string line;
  for (const auto& word : words) {
    if (!line.empty()) line += ' ';
    bool quote = word.empty();
    for (const char c : word)
      if (isBlank(c) || c == '"') quote = true;
    if (!quote) {
      line += word;
      continue;
    }
    line += '"';
    for (const char c : word)
      line += c == '"' ? std::string("\"\"") : std::string(1, c);
    line += '"';
  }
  return line;
}

} // namespace drive
