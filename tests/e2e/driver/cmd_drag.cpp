// Dragging with the mouse as a user does: press the left button on a
// window, move the cursor a step every 20 ms, release. The program's CPU time
// during the drag is reported with the step.
#include "tests/e2e/driver/cmd_support.h"
#include "tests/e2e/driver/handles.h"
#include "tests/e2e/driver/input.h"

namespace drive::cmd {
namespace {

constexpr DWORD kStepMs = 20;
// After the last move the button stays down a little, so that a program
// that follows the mouse on a timer catches up before the release.
constexpr DWORD kHoldMs = 200;

// User and kernel time of a process, in milliseconds; -1 when it can't be read.
double cpuMs(HANDLE process) {
  FILETIME created{}, exited{}, kernel{}, user{};
  if (!process || !::GetProcessTimes(process, &created, &exited, &kernel, &user)) return -1;
  const auto ms = [](const FILETIME& t) {
    return static_cast<double>((static_cast<unsigned long long>(t.dwHighDateTime) << 32) |
                               t.dwLowDateTime) /
           10000.0;
  };
  return ms(kernel) + ms(user);
}

void moveTo(POINT at) {
  ::SetCursorPos(at.x, at.y);
  ::mouse_event(MOUSEEVENTF_MOVE, 0, 0, 0, 0);
}

} // namespace

Outcome drag(const Args& args) {
  Outcome failure;
  long dx = 0, dy = 0, ms = 1000;
  HWND window = lookupVisible(args[0], &failure);
  if (!window || !number(args[1], &dx, &failure) || !number(args[2], &dy, &failure)) return failure;
  if (args.size() > 3 && !number(args[3], &ms, &failure)) return failure;
  RECT area{};
  ::GetWindowRect(window, &area);
  const POINT from{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
  // The hit may be the window, a child of it, or, when it or a container of
  // it is disabled, a window that holds it.
  HWND hit = ::WindowFromPoint(from);
  if (hit != window && !::IsChild(window, hit) && !::IsChild(hit, window))
    return fail(format("(%ld,%ld) is covered by %s", from.x, from.y, describe(hit).c_str()));

  DWORD processId = 0;
  ::GetWindowThreadProcessId(window, &processId);
  OwnedHandle process(::OpenProcess(PROCESS_QUERY_INFORMATION, FALSE, processId));
  const double cpuBefore = cpuMs(process.get());
  const DWORD start = ::GetTickCount();

  moveTo(from);
  ::Sleep(kStepMs);
  ::mouse_event(MOUSEEVENTF_LEFTDOWN, 0, 0, 0, 0);
  const long steps = ms / static_cast<long>(kStepMs) > 0 ? ms / static_cast<long>(kStepMs) : 1;
  for (long i = 1; i <= steps; ++i) {
    ::Sleep(kStepMs);
    moveTo(POINT{from.x + dx * i / steps, from.y + dy * i / steps});
  }
  ::Sleep(kHoldMs);
  ::mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
  settle(window);

  const DWORD took = ::GetTickCount() - start;
  const double cpu = cpuMs(process.get()) - cpuBefore;
  if (cpuBefore < 0) return pass(format("by %ld,%ld in %lu ms", dx, dy, took));
  return pass(format("by %ld,%ld in %lu ms; program CPU %.0f ms (%.1f%% of one core)", dx, dy, took,
                     cpu, took ? 100.0 * cpu / took : 0.0));
}

} // namespace drive::cmd
