#pragma once

// The process's own input and output: a terminal window, or pipes and files.

#include <chrono>
#include <cstdint>
#include <string>

#include "shells/console/console.h"

namespace tb::console {

// A window is painted over and over when both ends are a terminal that can do it (TERM says so, and is not
// "dumb"); colours besides, unless NO_COLOR is set. Everything else gets lines one after the other, without
// any control sequence, and the lines read from a pipe or a file are repeated, so that a transcript reads as
// a conversation.
//
// The debug log would be written into a window's page: it is not shown there, but goes wherever else the
// standard error stream is sent to.
//
// SIGINT, SIGTERM and SIGHUP end the input. While a Terminal lives these signals are blocked and read as
// they come, so that no action of the player is cut in two.
class Terminal : public ConsolePort {
 public:
  Terminal();
  ~Terminal() override;

  [[nodiscard]] Shape shape() const override;
  void show(std::string_view page) override;
  Input read(std::string_view prompt, std::optional<double> wait) override;

 private:
  using Clock = std::chrono::steady_clock;

  // What the wait for the next bytes brought.
  enum class Event : std::uint8_t { bytes, timeUp, redraw, leave };
  Event await(std::optional<Clock::time_point> until) const;
  [[nodiscard]] Event signalled() const;
  bool takeBytes();                       // false at the end of the input
  std::optional<std::string> takeLine();  // from what has come in
  Input::What readLine(std::string_view prompt, std::string& line);
  Input::What editLine(std::string_view prompt, std::string& line, std::optional<Clock::time_point> until);
  std::optional<Input::What> edit(char byte);
  void write(std::string_view bytes);
  void silenceErrors();

  bool input_is_terminal_;
  bool window_;  // paints over and over
  bool colours_;
  bool blocks_;
  bool painted_ = false;
  bool gone_ = false;  // nobody reads what is written
  bool at_end_ = false;
  int signals_;           // a file to read the signals from
  int errors_ = -1;       // the standard error stream while it is silenced
  std::string received_;  // bytes without a line break so far, or lines not yet asked for
  std::string typed_;     // the line under way while a countdown repaints the window
};

}  // namespace tb::console
