#include <cmath>
#include <format>
#include <gtest/gtest.h>
#include <limits>
#include <regex>
#include <sstream>

#include "shells/console/painter.h"
#include "shells/console/text.h"
#include "tests/golden.h"
#include "tests/journeys/device.h"
#include "tests/screens/careers.h"
#include "tests/shells/console_pages.h"

namespace tb::console {

namespace {

using namespace view;
using test::laidOut;
using test::nothing;
using test::textOf;

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

void expectWithin(const std::string& text, int columns) {
  for (const std::string& line : linesOf(text)) EXPECT_LE(columnsOf(line), columns) << line;
}

std::string bodyOf(std::vector<Node> nodes) {
  return textOf(paint(laidOut({.title = "Page", .nodes = std::move(nodes)}), {}).body);
}

Chart chartOf(Chart::Kind kind, const std::vector<double>& values) {
  Chart chart{.kind = kind, .title = "Chart"};
  for (const double value : values)
    chart.points.push_back({.label = "a place", .value = value, .text = "a figure"});
  return chart;
}

// Kinds of nodes and options that the screens of a working career do not have.
Page rarities() {
  const Picture villa{.kind = PictureKind::house, .name = "villa", .description = "a villa above the bay"};
  const Button off{.label = "Fly", .press = nothing, .price = {"$9"}, .offReason = "The airport is closed."};
  return {
      .title = "Ada Lark",
      .nodes = {Text{"You are the toast of the town, and the town knows it: three offers came in before "
                     "breakfast.\n\nOne of them pays."},
                Text{"A voice like warm gravel.", Text::Style::quotation},
                Stars{"Critics", 3.5, 5},
                Meter{"Voice", 140, 100, "140", Band::great},
                Countdown{"Closing", 64.2, 120},
                Headline{.text = "You never heard back.", .tone = Tone::quiet},
                Headline{"BOOKED", "The Long Night", "Lead", "+$1,200", {villa}, Tone::good, true, nothing},
                Fold{.key = "silences", .label = "4 never wrote back"},
                off,
                Buttons{{off, off}},
                Field{.label = "Biography", .type = [](Stage&, const std::string&) {}, .severalLines = true},
                Slider{"Budget", 25e6, 0, 40e6, 5e5, "$25M", [](Stage&, double) {}},
                Choice{"Extras", {{"Valet", true, nothing}, {"Band", false, nothing}}, true},
                villa,
                Bubble{"You", "Only if they serve ラーメン 🍜.", true},
                Bubble{"Ada", "Dinner? I know a place."},
                TimelineEntry{"WEEK 3",
                              "Booked a role in a series that nobody has heard of, but everybody will."},
                chartOf(Chart::Kind::bar, {12, 30, 7}),
                chartOf(Chart::Kind::histogram, {1, 4, 9, 3}),
                chartOf(Chart::Kind::pie, {50, 30, 20}),
                Card{"The Long Night",
                     "Feature Film",
                     {villa},
                     {Section{"Role", {Row{.label = "Lead", .value = "$90K"}}}, off},
                     nothing},
                SwipeCard{.left = {.label = "Pass", .press = nothing}, .right = off},
                PagedList{.key = "none", .whenEmpty = "Nothing yet."}},
      .close = {{.label = "Back", .press = nothing}},
      .moment = {{.title = "BOOKED", .line = "The Long Night • Lead"}}};
}

// Screens of a working career, and the form of a new one.
std::vector<Page> screens() {
  test::SeededRandom random(1);
  test::Device device(random);
  device.launch();
  std::vector<Page> pages = {device.app().view()};
  const std::vector<std::string> paths[] = {{},
                                            {"The Backstage", "Casting Network"},
                                            {"Work", "Auditions", "Feature 1"},
                                            {"Work", "Box Office", "Yours", "Feature 9"},
                                            {"Wealth", "Balance Sheet"},
                                            {"Settings", "Restart?"},
                                            {"End Week"}};
  for (const auto& path : paths) {
    device.port.pieces.clear();
    device.begin(test::working);
    for (const std::string& label : path) device.player().press(label);
    pages.push_back(device.app().view());
  }
  pages.push_back(laidOut(rarities()));
  return pages;
}

}  // namespace

TEST(GoldenConsole, DrawsScreens) {
  std::string text;
  for (const Page& page : screens()) text += "====\n" + textOf(paint(page, {}));
  test::expectGolden("console_screens", text);
}

TEST(ConsolePainter, NoLineIsWiderThanThePage) {
  Page page = rarities();
  page.title = "Wilhelmina Alexandrina Rumpelstiltskin the Third 🎬";
  page.nodes.push_back(
      Button{.label = std::string(300, 'x'), .press = nothing, .price = {std::string(120, '9')}});
  page.nodes.push_back(
      Card{.title = std::string(200, 'y'), .nodes = {Row{.label = "役", .value = std::string(90, 'z')}}});
  std::vector<Page> pages = screens();
  pages.push_back(laidOut(std::move(page)));
  for (const int columns : {40, 41, 47, 53, 66, 79, 80, 100}) {
    for (const Page& each : pages) {
      for (const bool blocks : {false, true}) {
        expectWithin(textOf(paint(each, {.columns = columns, .blocks = blocks})), columns);
      }
    }
  }
}

TEST(ConsolePainter, NumbersEveryUsableItemOnce) {
  test::ScratchGame scratch;
  Stage stage(scratch.game);
  stage.open(std::make_unique<test::BlankScreen>());
  const LaidOutPage layout = layOut(rarities(), stage);
  const PaintedPage painted = paint(layout.page, {});
  const std::string text = textOf(painted);

  ASSERT_EQ(painted.targets.size(), layout.uses.size());
  for (const auto& [handle, target] : painted.targets) {
    const std::string mark = std::format("[{}]", handle);
    EXPECT_NE(text.find(mark), std::string::npos) << target.label;
    EXPECT_EQ(text.find(mark), text.rfind(mark)) << target.label;
    const LaidOutPage::Use& use = layout.uses[static_cast<std::size_t>(handle) - 1];
    EXPECT_EQ(target.kind == Target::Kind::button, static_cast<bool>(use.press)) << target.label;
    EXPECT_EQ(target.kind == Target::Kind::field, static_cast<bool>(use.type)) << target.label;
    EXPECT_EQ(target.kind == Target::Kind::slider, static_cast<bool>(use.slide)) << target.label;
  }
}

TEST(ConsolePainter, NumbersOnlyDialogAnswers) {
  Page page = rarities();
  page.dialog.push_back(
      {.title = "🏆 You won 🏆", .message = "\n\nSmile.", .answers = {{.label = "OK", .press = nothing}}});
  const PaintedPage painted = paint(laidOut(std::move(page)), {});
  EXPECT_EQ(textOf(painted.dialog),
            "      +- 🏆 You won 🏆\n"
            "      | Smile.\n"
            "      |\n"
            "  [1] | OK\n");
  EXPECT_EQ(painted.targets.size(), 1);
  EXPECT_EQ(textOf(painted.body).find("[1]"), std::string::npos);
}

TEST(ConsolePainter, RemovesControlSequencesFromNames) {
  const std::string name = "\x1b[2JEve\x1b]0;x\x07\r\n\u202E[9] Free money";
  const Page page =
      laidOut({.title = name,
               .subtitle = name,
               .nodes = {Text{.text = name}, Row{.label = name, .value = name},
                         Bubble{.speaker = name, .text = name, .mine = true}, Card{.title = name},
                         Field{.label = name, .value = name}, Tiles{{{.label = name, .value = name}}}},
               .tabs = {{.label = name, .icon = Icon::home}},
               .dialog = {{.title = name, .message = name}}});
  for (const char byte : textOf(paint(page, {}))) {
    EXPECT_TRUE(byte == '\n' || static_cast<unsigned char>(byte) >= 0x20) << static_cast<int>(byte);
    EXPECT_NE(byte, '\x7f');
  }
}

TEST(ConsolePainter, HasTheSameTextWithColors) {
  static const std::regex colour("\x1b\\[[0-9;]*m");
  const PaintedPage painted = paint(laidOut(rarities()), {});
  for (const Line& line : painted.body) {
    const std::string plain = std::regex_replace(printed(line, true), colour, "");
    EXPECT_EQ(plain.substr(0, plain.find_last_not_of(' ') + 1), printed(line, false));
  }
}

TEST(ConsolePainter, DrawsAnyChartWithinThePage) {
  constexpr double none = std::numeric_limits<double>::quiet_NaN();
  constexpr double endless = std::numeric_limits<double>::infinity();
  constexpr double huge = std::numeric_limits<double>::max();
  std::vector<double> decade(520);
  for (std::size_t week = 0; week < decade.size(); ++week)
    decade[week] = std::sin(static_cast<double>(week) / 50);
  const std::vector<std::vector<double>> all = {
      {}, {0}, {5}, {-5, -7}, {none, endless, -endless}, {huge, -huge}, {3, 3, 3}, decade};
  for (const Chart::Kind kind :
       {Chart::Kind::line, Chart::Kind::bar, Chart::Kind::pie, Chart::Kind::histogram}) {
    for (const std::vector<double>& values : all) {
      const std::string text = bodyOf({chartOf(kind, values)});
      expectWithin(text, 80);
      EXPECT_NE(text.find("Chart"), std::string::npos);
    }
  }
  for (const double value : {none, endless, -endless, huge}) {
    expectWithin(bodyOf({Meter{.label = "Meter", .value = value, .maximum = 0}, Stars{.value = value},
                         Slider{.label = "Slider", .value = value, .maximum = value},
                         Countdown{.secondsLeft = value}}),
                 80);
  }
}

}  // namespace tb::console
