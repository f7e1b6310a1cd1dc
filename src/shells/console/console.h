#pragma once

// The console shell's loop: shows the page, reads a line, executes it.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/app.h"
#include "shells/console/painter.h"

namespace tb::console {

// The result of a read.
struct Input {
  enum class What : std::uint8_t {
    line,
    nothing,  // timeout or resized window: show the page again
    end,      // end of the input
  };
  What what = What::end;
  std::string line;    // without its line break
  double seconds = 0;  // time spent waiting
};

// The console's output and input: a terminal, a pipe, or strings in a test.
class ConsolePort {
 public:
  struct Shape {
    int columns = 80;  // of a line
    int rows = 0;      // of a window that is repainted; 0: output is a stream of lines
    bool colours = false;
    bool blocks = false;  // can show block and line characters
  };

  ConsolePort() = default;
  ConsolePort(const ConsolePort&) = delete;
  ConsolePort& operator=(const ConsolePort&) = delete;
  virtual ~ConsolePort() = default;

  [[nodiscard]] virtual Shape shape() const = 0;

  // Shows a page; in a window from the first line.
  virtual void show(std::string_view page) = 0;

  // Reads a line. With `wait`, returns `nothing` after that many seconds.
  virtual Input read(std::string_view prompt, std::optional<double> wait) = 0;
};

class Console {
 public:
  Console(App& app, ConsolePort& port) : app_(app), port_(port) {}

  // Runs until the player leaves or the input ends.
  void play();

 private:
  bool obey(const Input& input);  // false when the player leaves
  bool leave(bool warned);
  bool use(view::Handle handle, const std::string& words);
  bool type(view::Handle handle, const Target& field, std::string words);
  bool slide(view::Handle handle, const Target& slider, std::string words);
  void goBack();
  void scrollOn();

  std::optional<std::string> ask(const std::string& prompt);
  std::optional<std::string> askForSeveralLines(const Target& field);
  void letTimePass(double seconds);
  [[nodiscard]] bool stillThere(view::Handle handle, const Target& target);
  void paintAgain();
  void show();
  [[nodiscard]] std::vector<Line> hintLines(int columns) const;
  [[nodiscard]] std::string window(const ConsolePort::Shape& shape);

  App& app_;
  ConsolePort& port_;
  PaintedPage page_;
  std::string hint_;       // about the last input
  bool warned_ = false;    // the last input was q, and leaving loses something
  int passed_ = 0;         // number of the last shown passing line
  std::string place_;      // identifies the scrolled content
  std::size_t first_ = 0;  // first visible line of a long page
  std::size_t shown_ = 0;  // visible lines of it
  std::size_t length_ = 0;
};

}  // namespace tb::console
