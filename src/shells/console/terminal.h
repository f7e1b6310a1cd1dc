#pragma once

// The process's own input and output: a terminal window, or pipes and files.

#include <chrono>
#include <cstdint>
#include <string>

#include "shells/console/console.h"

namespace tb::console {

// If input and output are a terminal (and TERM is not "dumb"), the window is repainted for each page, with
// colors unless NO_COLOR is set. Otherwise the output is a stream of lines without control sequences, and
// input lines are echoed so that a transcript shows them.
//
// The debug log is suppressed when standard error is that window, because it would overwrite the page.
//
// SIGINT, SIGTERM and SIGHUP end the input. The signals are blocked and read from a file descriptor, so that
// they do not interrupt an action.
class Terminal : public ConsolePort {
 public:
  Terminal();
  ~Terminal() override;

  [[nodiscard]] Shape shape() const override;
  void show(std::string_view page) override;
  Input read(std::string_view prompt, std::optional<double> wait) override;

 private:
  using Clock = std::chrono::steady_clock;

  // The result of waiting for input.
  enum class Event : std::uint8_t { bytes, timeUp, redraw, leave };
  Event await(std::optional<Clock::time_point> until) const;
  [[nodiscard]] Event signalled() const;
  bool readBytes();                       // false at the end of the input
  std::optional<std::string> nextLine();  // the next complete line that was received
  Input::What readLine(std::string_view prompt, std::string& line);
  Input::What editLine(std::string_view prompt, std::string& line, std::optional<Clock::time_point> until);
  std::optional<Input::What> edit(char byte);
  void write(std::string_view bytes);
  void silenceErrors();

  bool input_is_terminal_;
  bool window_;  // repaints the window for each page
  bool colours_;
  bool blocks_;
  bool painted_ = false;
  bool gone_ = false;  // the reader of the output is gone
  bool at_end_ = false;
  int signals_;           // signal file descriptor
  int errors_ = -1;       // saved standard error while it is suppressed
  std::string received_;  // received bytes that were not returned yet
  std::string typed_;     // the line typed so far, during a countdown
};

}  // namespace tb::console
