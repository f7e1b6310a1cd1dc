#include "shells/console/stop_notice.h"

#include <array>
#include <csignal>
#include <cstddef>
#include <format>
#include <optional>
#include <string>
#include <termios.h>
#include <unistd.h>

namespace tb::console {

namespace {

constexpr std::size_t stopStackSize = 16384;  // bytes
constexpr std::array stopSignals = {SIGILL, SIGTRAP, SIGABRT, SIGBUS, SIGFPE, SIGSEGV};

// What the handler needs. It must not allocate, because the stop can be in the middle of an allocation.
struct StopNotice {
  std::string text;
  int errors = STDERR_FILENO;  // also while the terminal suppresses standard error
  std::optional<termios> terminal;
  alignas(64) std::array<std::byte, stopStackSize> stack = {};  // the process's own can be full
};

StopNotice& stopNotice() {
  static StopNotice prepared;
  return prepared;
}

void sayStop(int signal) {
  const StopNotice& prepared = stopNotice();
  if (prepared.terminal) tcsetattr(STDIN_FILENO, TCSANOW, &*prepared.terminal);
  if (write(prepared.errors, prepared.text.data(), prepared.text.size()) < 0) {
    // Nobody reads it.
  }
  raise(signal);  // ends the process: the handler is removed
}

}  // namespace

void announceStops(const std::filesystem::path& folder) {
  StopNotice& prepared = stopNotice();
  // The sequence ends the cutting of long lines that the terminal can be in.
  prepared.text = std::format(
      "{}\nThe game stopped because of an error. Your career is safe as of the last thing you did.\n"
      "Start the game again to go on. If it stops there again, start it with --last-week once, which takes "
      "the last\n"
      "week back, or restore a backup from Settings.\n"
      "To keep a copy of your career, copy the folder {}\n",
      isatty(STDERR_FILENO) == 1 ? "\x1b[?7h" : "", folder.string());
  prepared.errors = dup(STDERR_FILENO);
  termios now = {};
  if (tcgetattr(STDIN_FILENO, &now) == 0) prepared.terminal = now;

  const stack_t stack = {.ss_sp = prepared.stack.data(), .ss_flags = 0, .ss_size = stopStackSize};
  sigaltstack(&stack, nullptr);
  struct sigaction action = {};
  action.sa_handler = sayStop;
  action.sa_flags = SA_RESETHAND | SA_ONSTACK | SA_NODEFER;
  for (const int stop : stopSignals) sigaction(stop, &action, nullptr);
}

}  // namespace tb::console
