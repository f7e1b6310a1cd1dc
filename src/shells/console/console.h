#pragma once

// The console shell's loop: shows the page, reads a line, does what it says.

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "screens/app.h"
#include "shells/console/painter.h"

namespace tb::console {

// What a read brought.
struct Input {
  enum class What : std::uint8_t {
    line,
    nothing,  // the wait is over, or the window has another size: show the page again
    end,      // there will be no more
  };
  What what = What::end;
  std::string line;    // as it came, without its line break
  double seconds = 0;  // that went by while waiting
};

// Where the console is shown and from where it reads: a terminal, a pipe, a test's strings.
class ConsolePort {
 public:
  struct Shape {
    int columns = 80;  // of a line
    int rows = 0;      // of a window that is painted over and over; 0: lines just follow each other
    bool colours = false;
    bool blocks = false;  // has the block and line characters
  };

  ConsolePort() = default;
  ConsolePort(const ConsolePort&) = delete;
  ConsolePort& operator=(const ConsolePort&) = delete;
  virtual ~ConsolePort() = default;

  [[nodiscard]] virtual Shape shape() const = 0;

  // The bytes of one page; a window's page starts at its first line.
  virtual void show(std::string_view page) = 0;

  // Asks for a line. With `wait`, comes back with nothing after that many seconds.
  virtual Input read(std::string_view prompt, std::optional<double> wait) = 0;
};

class Console {
 public:
  Console(App& app, ConsolePort& port) : app_(app), port_(port) {}

  // Until the player leaves or the input ends. All that was done is saved by then, as far as saving works.
  void play();

 private:
  bool obey(const Input& input);  // false: the player leaves
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
  [[nodiscard]] std::string window(const ConsolePort::Shape& shape);

  App& app_;
  ConsolePort& port_;
  PaintedPage page_;
  std::string hint_;       // about the last thing typed, until the next
  int passed_ = 0;         // the number of the last passing line that was shown
  std::string place_;      // what is scrolled: the page and its tab, or the dialog
  std::size_t first_ = 0;  // the first line in view of a page longer than the window
  std::size_t shown_ = 0;  // lines of it that the window shows
  std::size_t length_ = 0;
};

}  // namespace tb::console
