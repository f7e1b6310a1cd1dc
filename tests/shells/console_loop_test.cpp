#include <deque>
#include <format>
#include <gtest/gtest.h>
#include <ranges>

#include "shells/console/console.h"
#include "shells/console/text.h"
#include "tests/golden.h"
#include "tests/shells/console_pages.h"

namespace tb::console {

namespace {

// A port with scripted input lines that records the shown pages.
class ScriptedPort : public ConsolePort {
 public:
  [[nodiscard]] Shape shape() const override { return shape_; }
  void show(std::string_view page) override { pages.emplace_back(page); }
  Input read(std::string_view prompt, std::optional<double> wait) override {
    prompts.emplace_back(prompt);
    waits.push_back(wait);
    if (inputs_.empty()) return {};
    Input input = inputs_.front();
    inputs_.pop_front();
    return input;
  }

  ScriptedPort& types(std::string line, double seconds = 0) {
    inputs_.push_back({.what = Input::What::line, .line = std::move(line), .seconds = seconds});
    return *this;
  }
  ScriptedPort& waitsFor(double seconds) {
    inputs_.push_back({.what = Input::What::nothing, .seconds = seconds});
    return *this;
  }
  void window(int rows) { shape_.rows = rows; }
  [[nodiscard]] std::size_t unread() const { return inputs_.size(); }

  std::vector<std::string> pages;
  std::vector<std::string> prompts;
  std::vector<std::optional<double>> waits;

 private:
  Shape shape_;
  std::deque<Input> inputs_;
};

// Records the test screen's operations.
struct Seen {
  int presses = 0;
  std::string name = "Ada";
  std::vector<double> slid;
  int lines = 3;
  double secondsLeft = 0;
  std::string bid = "Bid";
};

class DeskScreen : public Screen {
 public:
  explicit DeskScreen(Seen& seen) : seen_(seen) {}

  void tick(Stage&, double seconds) override {
    seen_.secondsLeft -= seconds;
    if (seen_.secondsLeft < 20) seen_.bid = "Bid more";
  }

  [[nodiscard]] view::Page view(const Game&) override {
    const auto write = [this](Stage&, const std::string& text) { seen_.name = text; };
    view::Page page{
        .title = "Desk",
        .nodes = {view::Button{.label = seen_.bid, .press = [this](Stage&) { seen_.presses += 1; }},
                  view::Field{.label = "Name", .value = seen_.name, .type = write, .maximumLength = 10},
                  view::Slider{.label = "Age",
                               .minimum = 18,
                               .maximum = 60,
                               .slide = [this](Stage&, double value) { seen_.slid.push_back(value); }},
                  view::Field{.label = "Story", .type = write, .maximumLength = 40, .severalLines = true},
                  view::Button{.label = "Ask",
                               .press = [](Stage& stage) { stage.show(Notice{"Sure?", "Really?"}); }},
                  view::Button{
                      .label = "Open",
                      .press = [](Stage& stage) { stage.open(std::make_unique<test::BlankScreen>()); }}},
        .tabs = {{.label = "Home", .current = true, .press = test::nothing}}};
    if (seen_.secondsLeft > 0) {
      page.nodes.push_back(
          view::Countdown{.label = "Closing", .secondsLeft = seen_.secondsLeft, .secondsInAll = 60});
    }
    for (int line = 1; line <= seen_.lines; ++line)
      page.nodes.push_back(view::Text{.text = std::format("Line {}.", line)});
    return page;
  }

 private:
  Seen& seen_;
};

struct Session {
  const char* what;
  std::vector<std::string> lines;  // "(wait)" for none in time
  double seconds = 0;              // until each line
  Seen seen = {};
  int rows = 0;  // of the window
  bool diskIsFull = false;
};

// What each page says that the one before it did not, in a window and while nothing can be saved whole pages;
// what was asked; and what the screen has seen.
std::string transcriptOf(const Session& session) {
  ScriptedPort port;
  port.window(session.rows);
  for (const std::string& line : session.lines) {
    if (line == "(wait)") {
      port.waitsFor(session.seconds);
    } else {
      port.types(line, session.seconds);
    }
  }
  test::ScratchGame scratch;
  scratch.port.failAll(session.diskIsFull);
  scratch.store.put("weekNumber", plist::Value{std::int64_t{3}});
  Seen seen = session.seen;
  App app(scratch.store, scratch.random, {}, std::make_unique<DeskScreen>(seen));
  Console(app, port).play();

  std::string text = std::format("==== {}\n", session.what);
  const bool isWhole = session.rows > 0 || session.diskIsFull;
  std::string before = isWhole ? "" : port.pages.front();
  for (const std::string& page : port.pages) {
    for (const auto line : std::views::split(page, '\n')) {
      const std::string shown(line.begin(), line.end());
      if (!before.contains(shown + "\n")) text += shown + "\n";
    }
    if (!isWhole) before = page;
  }
  for (std::size_t index = 0; index < port.prompts.size(); ++index) {
    text += port.prompts[index] + (port.waits[index] ? std::format("({} s)|", *port.waits[index]) : "|");
  }
  return text + std::format("\npresses {}, name '{}', slid {}, {} s left, unread {}\n", seen.presses,
                            seen.name, testing::PrintToString(seen.slid), seen.secondsLeft, port.unread());
}

TEST(GoldenConsoleLoop, Sessions) {
  const Session sessions[] = {
      {"a number uses its item, and q leaves at once",
       {"1", "  1  ", "2 Zoë Lark", "3 25", "3 -7.5", "q", "1"}},
      {"a field or a slider asks for a missing value, and Enter keeps it",
       {"2", "Bo", "3", "40", "2", "", "3", ""}},
      {"a field is cleared", {"2", "-"}},
      {"a long field takes several lines", {"4", "Born.", "Acted.", ""}},
      {"the input ends at a question", {"2"}},
      {"the input ends in a long field", {"4", "Half a story"}},
      {"what cannot be used is explained",
       {"77", "1 now", "3 old", "3 1e9", "3 nan", "b", "sell", "999999999999"}},
      {"a dialog is modal", {"5", "b", "2 Eve", "1", "6", "b", ""}},
      {"a text is cleaned and cut",
       {"2 \x1b[31mEvil\x1b[0m\x07\t" + std::string(1, '\0') + "\xff\xc3name" + std::string(100'000, 'x')}},
      {"a question mark shows the help", {"?", ""}},
      {"q warns while nothing can be saved", {"q", "?", "q", "q", "?"}, 0, {}, 0, true},
      {"time passes only in a countdown", {""}, 30},
      {"a countdown is painted every second", {"(wait)", "(wait)", "1"}, 1, {.secondsLeft = 60}, 24},
      {"a number does not use an item that replaced it", {"1"}, 45, {.secondsLeft = 60}},
      {"a long page scrolls below its head and above its tabs", {"", "", "", ""}, 0, {.lines = 50}, 24},
      {"the scroll position stays, and a dialog is shown whole",
       {"", "1", "5", "1", "6"},
       0,
       {.lines = 50},
       24}};
  std::string text;
  for (const Session& session : sessions) text += transcriptOf(session);
  test::expectGolden("console_sessions", text);
}

}  // namespace

}  // namespace tb::console
