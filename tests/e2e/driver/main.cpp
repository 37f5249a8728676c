// tl99drive: drives a program under test as a user would and checks what it
// shows and writes. Runs inside Wine, in the same prefix as the program.
//
//   tl99drive COMMAND ARGS...   one command
//   tl99drive -f SCRIPT         the commands of a script file, one per line,
//                               up to the first that fails
//   tl99drive -k -f SCRIPT      all of them, whatever fails
//
// Each command prints one line, "ok: ..." or "FAIL: ...". The exit code is
// the number of failed commands. In a script, blank lines and lines starting
// with "#" are skipped, and a line may start with "@WHERE", which stands for
// the command's place in the test case in what is printed.
#include "tests/e2e/driver/commands.h"
#include "tests/e2e/driver/script.h"

#include <windows.h>

#include <cstdio>
#include <cstring>

namespace drive {
namespace {

Outcome tryUntilTimeout(const Command& command, const Args& args) {
  const DWORD start = ::GetTickCount();
  while (true) {
    Outcome outcome = command.run(args);
    if (outcome.ok || ::GetTickCount() - start >= stepTimeoutMs()) return outcome;
    ::Sleep(100);
  }
}

Outcome runStep(Args words) {
  const bool negated = words[0] == "not";
  if (negated) {
    words.erase(words.begin());
    if (words.empty()) return fail("not what?");
  }
  const Command* command = findCommand(words[0]);
  if (!command) return fail("unknown command " + words[0]);
  const Args args(words.begin() + 1, words.end());
  const int count = static_cast<int>(args.size());
  if (count < command->minArgs || count > command->maxArgs)
    return fail(format("usage: %s %s", command->name, command->args));
  if (negated) {
    const Outcome outcome = command->run(args);
    if (outcome.ok) return fail("it holds" + (outcome.detail.empty() ? "" : ": " + outcome.detail));
    return pass(outcome.detail);
  }
  return command->timing == Timing::Retried ? tryUntilTimeout(*command, args) : command->run(args);
}

// Text for a one-line report: line ends and tabs written as \n, \r, \t.
std::string oneLine(const std::string& text) {
  std::string line;
  for (const char c : text) {
    if (c == '\n')
      line += "\\n";
    else if (c == '\r')
      line += "\\r";
    else if (c == '\t')
      line += "\\t";
    else
      line += c;
  }
  return line;
}

// Runs one step and prints its line; true when it passed.
bool report(const std::string& where, const Args& words) {
  const Outcome outcome = runStep(words);
  const std::string line = oneLine(joinWords(words));
  const std::string detail = oneLine(outcome.detail);
  if (outcome.ok) {
    if (detail.empty())
      std::printf("ok: %s%s\n", where.c_str(), line.c_str());
    else
      std::printf("ok: %s%s (%s)\n", where.c_str(), line.c_str(), detail.c_str());
  } else {
    std::printf("FAIL: %s%s: %s\n", where.c_str(), line.c_str(), detail.c_str());
  }
  std::fflush(stdout);
  return outcome.ok;
}

int runScript(const char* path, bool keepGoing) {
  std::FILE* file = std::fopen(path, "r");
  if (!file) {
    std::printf("FAIL: cannot open %s\n", path);
    return 1;
  }
  int failures = 0, lineNumber = 0;
  char buffer[4096];
  while (std::fgets(buffer, sizeof buffer, file)) {
    ++lineNumber;
    Args words;
    std::string error;
    std::string where = format("%s:%d: ", path, lineNumber);
    if (!splitWords(buffer, &words, &error)) {
      std::printf("FAIL: %s%s\n", where.c_str(), error.c_str());
      ++failures;
      if (!keepGoing) break;
      continue;
    }
    if (!words.empty() && words[0].size() > 1 && words[0][0] == '@') {
      where = words[0].substr(1) + ": ";
      words.erase(words.begin());
    }
    if (words.empty() || words[0][0] == '#') continue;
    if (report(where, words)) continue;
    ++failures;
    if (!keepGoing) break;
  }
  std::fclose(file);
  return failures;
}

void usage() {
  std::printf("usage: tl99drive COMMAND ARGS...\n"
              "       tl99drive [-k] -f SCRIPT   (-k: go on after a failure)\n"
              "Windows are found by their TL99.Name property. Commands:\n");
  printCommands();
}

} // namespace
} // namespace drive

int main(int argc, char** argv) {
  if (argc < 2 || std::strcmp(argv[1], "-h") == 0 || std::strcmp(argv[1], "--help") == 0) {
    drive::usage();
    return argc < 2 ? 1 : 0;
  }
  const bool keepGoing = std::strcmp(argv[1], "-k") == 0;
  const int flag = keepGoing ? 2 : 1;
  if (argc > flag && std::strcmp(argv[flag], "-f") == 0) {
    if (argc != flag + 2) {
      drive::usage();
      return 1;
    }
    return drive::runScript(argv[flag + 1], keepGoing);
  }
  return drive::report("", drive::Args(argv + 1, argv + argc)) ? 0 : 1;
}
