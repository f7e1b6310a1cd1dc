#include "shells/console/terminal.h"

#include <algorithm>
#include <cerrno>
#include <clocale>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <langinfo.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/signalfd.h>
#include <termios.h>
#include <unistd.h>
#include <utility>

#include "shells/console/text.h"

namespace tb::console {

namespace {

constexpr int widest = 100;    // columns; longer lines are hard to read
constexpr int narrowest = 40;  // columns; a narrower window wraps lines itself
constexpr int usual = 80;      // columns, when the width is unknown
constexpr int usualRows = 24;
constexpr std::size_t maxLineBytes = 4096;  // bytes; the rest of a longer line is dropped

constexpr std::string_view clearWindow = "\x1b[2J";
constexpr std::string_view toTheTop = "\x1b[H";
constexpr std::string_view clearLine = "\x1b[2K";
constexpr std::string_view clearBelow = "\x1b[J";
constexpr std::string_view cutLongLines = "\x1b[?7l";
constexpr std::string_view breakLongLines = "\x1b[?7h";

constexpr char endOfInput = 0x04;  // Ctrl-D
constexpr char backspace = 0x08;
constexpr char eraseLine = 0x15;  // Ctrl-U
constexpr char rubOut = 0x7F;

std::string_view setting(const char* name) {
  const char* value = std::getenv(name);
  return value == nullptr ? "" : value;
}

bool speaksUtf8() {
  const bool utf8 = setlocale(LC_CTYPE, "") != nullptr && std::string_view(nl_langinfo(CODESET)) == "UTF-8";
  setlocale(LC_CTYPE, "C");
  return utf8;
}

sigset_t watchedSignals() {
  sigset_t watched;
  sigemptyset(&watched);
  for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGWINCH, SIGCONT}) sigaddset(&watched, signal);
  return watched;
}

// Switches the terminal to unbuffered input without echo while it exists, so that the typed line can be
// repainted.
class UneditedInput {
 public:
  UneditedInput() {
    was_set_ = tcgetattr(STDIN_FILENO, &before_) == 0;
    if (!was_set_) return;
    termios unedited = before_;
    unedited.c_lflag &= ~static_cast<tcflag_t>(ICANON | ECHO);
    tcsetattr(STDIN_FILENO, TCSANOW, &unedited);
  }
  UneditedInput(const UneditedInput&) = delete;
  UneditedInput& operator=(const UneditedInput&) = delete;
  ~UneditedInput() {
    if (was_set_) tcsetattr(STDIN_FILENO, TCSANOW, &before_);
  }

 private:
  termios before_{};
  bool was_set_ = false;
};

void dropLastCharacter(std::string& text) {
  while (!text.empty() && (static_cast<unsigned char>(text.back()) & 0xC0u) == 0x80) text.pop_back();
  if (!text.empty()) text.pop_back();
}

}  // namespace

Terminal::Terminal()
    : input_is_terminal_(isatty(STDIN_FILENO) == 1),
      window_(input_is_terminal_ && isatty(STDOUT_FILENO) == 1 && !setting("TERM").empty() &&
              setting("TERM") != "dumb"),
      colours_(window_ && setting("NO_COLOR").empty()),
      blocks_(window_ && speaksUtf8()) {
  std::signal(SIGPIPE, SIG_IGN);
  const sigset_t watched = watchedSignals();
  sigprocmask(SIG_BLOCK, &watched, nullptr);
  signals_ = signalfd(-1, &watched, SFD_CLOEXEC | SFD_NONBLOCK);
  if (window_ && isatty(STDERR_FILENO) == 1) silenceErrors();
}

Terminal::~Terminal() {
  write("\n");
  if (signals_ >= 0) close(signals_);
  if (errors_ >= 0) {
    dup2(errors_, STDERR_FILENO);
    close(errors_);
  }
  const sigset_t watched = watchedSignals();
  sigprocmask(SIG_UNBLOCK, &watched, nullptr);
}

void Terminal::silenceErrors() {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere < 0) return;
  errors_ = fcntl(STDERR_FILENO, F_DUPFD_CLOEXEC, 0);
  dup2(nowhere, STDERR_FILENO);
  close(nowhere);
}

ConsolePort::Shape Terminal::shape() const {
  winsize size{};
  const bool known =
      isatty(STDOUT_FILENO) == 1 && ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
  return {.columns = known ? std::clamp<int>(size.ws_col, narrowest, widest) : usual,
          .rows = !window_                   ? 0
                  : known && size.ws_row > 0 ? size.ws_row
                                             : usualRows,
          .colours = colours_,
          .blocks = blocks_};
}

// --- Output ---

void Terminal::show(std::string_view page) {
  if (!window_) return write(page);
  // Overwrites line by line, because clearing the window first flickers.
  std::string bytes(std::exchange(painted_, true) ? "" : clearWindow);
  bytes += toTheTop;
  bytes += cutLongLines;
  bytes += clearLine;
  for (const char byte : page) {
    bytes += byte;
    if (byte == '\n') bytes += clearLine;
  }
  bytes += clearBelow;
  bytes += breakLongLines;
  write(bytes);
}

void Terminal::write(std::string_view bytes) {
  while (!bytes.empty() && !gone_) {
    const ssize_t written = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
    if (written < 0 && errno != EINTR && errno != EAGAIN) gone_ = true;
  }
}

// --- Input ---

Input Terminal::read(std::string_view prompt, std::optional<double> wait) {
  const Clock::time_point start = Clock::now();
  Input input;
  if (gone_) return input;
  if (window_ && (wait || !typed_.empty())) {
    const auto until = wait ? std::optional(start + std::chrono::duration_cast<Clock::duration>(
                                                        std::chrono::duration<double>(*wait)))
                            : std::nullopt;
    input.what = editLine(prompt, input.line, until);
  } else {
    input.what = readLine(prompt, input.line);
  }
  input.seconds = std::chrono::duration<double>(Clock::now() - start).count();
  return input;
}

Input::What Terminal::readLine(std::string_view prompt, std::string& line) {
  write(prompt);
  for (;;) {
    if (std::optional<std::string> taken = nextLine()) {
      line = std::move(*taken);
      if (!input_is_terminal_) write(cleaned(line) + "\n");
      return Input::What::line;
    }
    if (at_end_) return Input::What::end;
    switch (await({})) {
      case Event::bytes:
        at_end_ = !readBytes();
        break;
      case Event::timeUp:
        break;
      case Event::redraw:
        if (window_) return Input::What::nothing;
        break;
      case Event::leave:
        return Input::What::end;
    }
  }
}

Terminal::Event Terminal::await(std::optional<Clock::time_point> until) const {
  for (;;) {
    int milliseconds = -1;
    if (until) {
      const auto left = std::chrono::ceil<std::chrono::milliseconds>(*until - Clock::now());
      milliseconds = static_cast<int>(std::max<std::int64_t>(0, left.count()));
    }
    pollfd files[] = {{.fd = signals_, .events = POLLIN, .revents = 0},
                      {.fd = STDIN_FILENO, .events = POLLIN, .revents = 0}};
    const int ready = poll(files, std::size(files), milliseconds);
    if (ready == 0) return Event::timeUp;
    if (ready < 0 && errno != EINTR) return Event::leave;
    if (ready < 0) continue;
    if (files[0].revents != 0) return signalled();
    if (files[1].revents != 0) return Event::bytes;
  }
}

Terminal::Event Terminal::signalled() const {
  Event event = Event::redraw;
  for (signalfd_siginfo signal;
       ::read(signals_, &signal, sizeof signal) == static_cast<ssize_t>(sizeof signal);) {
    if (signal.ssi_signo != SIGWINCH && signal.ssi_signo != SIGCONT) event = Event::leave;
  }
  return event;
}

bool Terminal::readBytes() {
  char bytes[maxLineBytes];
  const ssize_t got = ::read(STDIN_FILENO, bytes, sizeof bytes);
  if (got > 0) received_.append(bytes, static_cast<std::size_t>(got));
  return got > 0 || (got < 0 && (errno == EINTR || errno == EAGAIN));
}

std::optional<std::string> Terminal::nextLine() {
  const std::size_t end = received_.find('\n');
  if (end == std::string::npos && (!at_end_ || received_.empty())) {
    if (received_.size() > maxLineBytes) received_.resize(maxLineBytes);
    return {};
  }
  std::string line = received_.substr(0, std::min(end, maxLineBytes));
  received_.erase(0, end == std::string::npos ? end : end + 1);
  return line;
}

// --- During a countdown ---

Input::What Terminal::editLine(std::string_view prompt, std::string& line,
                               std::optional<Clock::time_point> until) {
  const UneditedInput unedited;
  for (;;) {
    while (!received_.empty()) {
      const char byte = received_.front();
      received_.erase(0, 1);
      const std::optional<Input::What> done = edit(byte);
      if (!done) continue;
      line = std::exchange(typed_, "");
      write("\n");
      return *done;
    }
    write("\r" + std::string(prompt) + cleaned(typed_) + std::string(clearBelow));
    if (at_end_) return Input::What::end;
    switch (await(until)) {
      case Event::bytes:
        at_end_ = !readBytes();
        break;
      case Event::timeUp:
      case Event::redraw:
        return Input::What::nothing;
      case Event::leave:
        return Input::What::end;
    }
  }
}

std::optional<Input::What> Terminal::edit(char byte) {
  switch (byte) {
    case '\n':
    case '\r':
      return Input::What::line;
    case endOfInput:
      return typed_.empty() ? std::optional(Input::What::end) : std::nullopt;
    case backspace:
    case rubOut:
      dropLastCharacter(typed_);
      break;
    case eraseLine:
      typed_.clear();
      break;
    default:
      if (typed_.size() < maxLineBytes) typed_ += byte;
  }
  return {};
}

}  // namespace tb::console
