#include <algorithm>
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
  [[nodiscard]] const std::string& last() const { return pages.back(); }

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

void play(ScriptedPort& port, Seen& seen, bool diskIsFull) {
  test::ScratchGame scratch;
  scratch.port.failAll(diskIsFull);
  scratch.store.put("weekNumber", plist::Value{std::int64_t{3}});
  App app(scratch.store, scratch.random, {}, std::make_unique<DeskScreen>(seen));
  Console(app, port).play();
}

std::string transcriptOf(const std::vector<std::string>& lines) {
  ScriptedPort port;
  Seen seen;
  for (const std::string& line : lines) port.types(line);
  play(port, seen, false);
  std::string text;
  std::string before = port.pages.front();
  for (const std::string& page : port.pages) {
    for (const auto line : std::views::split(page, '\n')) {
      const std::string shown(line.begin(), line.end());
      if (!before.contains(shown + "\n")) text += shown + "\n";
    }
    before = page;
  }
  for (const std::string& prompt : port.prompts) text += prompt + "|";
  return text + std::format("\npresses {}, name '{}', slid {}, unread {}\n", seen.presses, seen.name,
                            testing::PrintToString(seen.slid), port.unread());
}

class ConsoleLoop : public testing::Test {
 protected:
  void play() { console::play(port, seen, diskIsFull); }
  // The page after the n-th input line; 0 is the first page.
  [[nodiscard]] const std::string& pageAfter(std::size_t n) const { return port.pages.at(n); }

  Seen seen;
  ScriptedPort port;
  bool diskIsFull = false;
};

TEST_F(ConsoleLoop, WarnsOnEachPageAndBeforeLeavingWhileNothingCanBeSaved) {
  diskIsFull = true;
  port.types("q").types("?").types("q").types("q").types("?");
  play();
  EXPECT_EQ(port.unread(), 1u);
  for (const std::string& page : port.pages)
    EXPECT_TRUE(page.contains("Not saved: The disk is full.")) << page;
  EXPECT_TRUE(pageAfter(1).contains("q again leaves without it."));
  EXPECT_FALSE(pageAfter(2).contains("q again"));
}

bool shows(const std::string& page, std::string_view text) { return page.contains(text); }

// What a player types, and what each page says that the one before it did not.
TEST(GoldenConsoleLoop, Sessions) {
  const std::pair<const char*, std::vector<std::string>> sessions[] = {
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
      {"a question mark shows the help", {"?", ""}}};
  std::string text;
  for (const auto& [what, lines] : sessions) text += "==== " + std::string(what) + "\n" + transcriptOf(lines);
  test::expectGolden("console_sessions", text);
}

}  // namespace

TEST_F(ConsoleLoop, TicksOnlyDuringCountdowns) {
  port.types("", 30);
  play();
  EXPECT_EQ(seen.secondsLeft, 0);

  seen.secondsLeft = 60;
  port.window(24);
  port.waitsFor(1).waitsFor(1).types("1", 0.5);
  play();
  EXPECT_EQ(seen.secondsLeft, 57.5);
  EXPECT_EQ(seen.presses, 1);
  EXPECT_EQ(port.waits.back(), 1.0) << "a window is painted again every second";
}

TEST_F(ConsoleLoop, ANumberDoesNotUseAnItemThatReplacedIt) {
  seen.secondsLeft = 60;
  port.types("1", 45);
  play();
  EXPECT_EQ(seen.presses, 0);
  EXPECT_TRUE(shows(port.last(), "Bid more"));
  EXPECT_TRUE(shows(port.last(), "The page has changed."));
}

TEST_F(ConsoleLoop, ScrollsLongPagesWithVisibleTabs) {
  seen.lines = 60;
  port.window(24);
  port.types("").types("").types("").types("").types("").types("");
  play();
  std::string seenLines;
  for (const std::string& page : port.pages) {
    EXPECT_LE(std::ranges::count(page, '\n'), 23) << "the prompt has a line too";
    EXPECT_TRUE(shows(page, "Desk"));
    EXPECT_TRUE(shows(page, "<Home>"));
    seenLines += page;
  }
  for (int line = 1; line <= 60; ++line) EXPECT_TRUE(shows(seenLines, std::format("Line {}.", line))) << line;
  EXPECT_TRUE(shows(pageAfter(0), "Enter for more"));
  EXPECT_TRUE(std::ranges::any_of(port.pages,
                                  [](const std::string& page) { return shows(page, "Enter for the top"); }));
}

TEST_F(ConsoleLoop, KeepsTheScrollPositionAndShowsWholeDialogs) {
  seen.lines = 60;
  port.window(24);
  port.types("").types("1").types("5").types("1").types("6");
  play();
  EXPECT_TRUE(shows(pageAfter(1), "Line 20."));
  EXPECT_TRUE(shows(pageAfter(2), "Line 20."));
  EXPECT_TRUE(shows(pageAfter(3), "Really?"));
  EXPECT_TRUE(shows(pageAfter(3), "[1] | OK"));
  EXPECT_TRUE(shows(pageAfter(4), "Line 20."));
  EXPECT_FALSE(shows(pageAfter(5), "Line"));
}

}  // namespace tb::console
