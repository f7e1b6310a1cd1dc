#include "shells/console/node_painter.h"

#include <algorithm>
#include <cmath>
#include <format>
#include <type_traits>
#include <utility>

#include "core/text.h"
#include "shells/console/chart.h"
#include "shells/console/icons.h"
#include "shells/console/text.h"

namespace tb::console {

using namespace view;

namespace {

constexpr int minTileWidth = 16;
constexpr int gaugeLabelWidth = 24;
constexpr int gaugeWidth = 24;
constexpr int whenWidth = 14;             // columns of a timeline entry's "when"
constexpr int bubbleShare = 3;            // a bubble is at most 3 quarters of the page wide
constexpr double maxCountdown = 359'999;  // seconds: 99:59:59

// Kinds with a blank line before and after.
template <class Kind>
constexpr bool standsApart =
    std::is_same_v<Kind, Tiles> || std::is_same_v<Kind, Chart> || std::is_same_v<Kind, Bubble> ||
    std::is_same_v<Kind, Section> || std::is_same_v<Kind, Card> || std::is_same_v<Kind, SwipeCard>;

Ink inkOf(Band band, Ink otherwise) {
  switch (band) {
    case Band::none:
      return otherwise;
    case Band::poor:
      return Ink::warning;
    case Band::fair:
      return Ink::plain;
    case Band::good:
      return Ink::accent;
    case Band::great:
      return Ink::good;
  }
  std::unreachable();
}

std::string_view nameOf(PictureKind kind) {
  switch (kind) {
    case PictureKind::avatar:
      return "Portrait";
    case PictureKind::poster:
      return "Poster";
    case PictureKind::logo:
      return "Logo";
    case PictureKind::house:
      return "House";
    case PictureKind::vehicle:
      return "Vehicle";
    case PictureKind::card:
      return "Card";
    case PictureKind::photo:
      return "Photo";
    case PictureKind::icon:
      return "Icon";
  }
  std::unreachable();
}

std::string inWords(const Picture& picture) {
  return picture.description.empty() ? ""
                                     : std::format("({}: {})", nameOf(picture.kind), picture.description);
}

std::string inWords(const std::vector<Picture>& pictures) {
  return pictures.empty() ? "" : inWords(pictures.front());
}

// A number without group separators and with up to four decimals.
std::string number(double value) {
  std::string digits = std::format("{:.4f}", value);
  digits.erase(digits.find_last_not_of('0') + 1);
  if (digits.ends_with('.')) digits.pop_back();
  return digits;
}

std::string stepMark(Row::Step step) {
  return step == Row::Step::none ? "" : step == Row::Step::taken ? "(x) " : "( ) ";
}

// "1:05", or "1:02:03" from one hour on. Rounded up to whole seconds.
std::string clock(double seconds) {
  const double inside = std::isfinite(seconds) ? std::clamp(seconds, 0.0, maxCountdown) : 0;
  const auto whole = static_cast<int>(std::ceil(inside));
  const int hours = whole / 3600;
  if (hours == 0) return std::format("{}:{:02}", whole / 60, whole % 60);
  return std::format("{}:{:02}:{:02}", hours, whole / 60 % 60, whole % 60);
}

}  // namespace

void NodePainter::draw(const Node& node) {
  std::visit(
      [this]<class Kind>(const Kind& shown) {
        if (standsApart<Kind>) canvas_.gap();
        kind(shown);
        if (standsApart<Kind>) canvas_.gap();
      },
      node.node);
}

void NodePainter::several(const std::vector<Node>& nodes) {
  depth_ += 1;
  for (const Node& node : nodes) draw(node);
  depth_ -= 1;
}

// --- Nodes without operations ---

void NodePainter::kind(const Text& text) {
  switch (text.style) {
    case Text::Style::body:
      canvas_.text(text.text, inkOf(text.tone));
      break;
    case Text::Style::large:
      canvas_.text(text.text, text.tone == Tone::plain ? Ink::strong : inkOf(text.tone));
      break;
    case Text::Style::caption:
      canvas_.text(text.text, text.tone == Tone::plain ? Ink::quiet : inkOf(text.tone));
      break;
    case Text::Style::heading:
      canvas_.gap();
      canvas_.text(text.text, Ink::strong);
      break;
    case Text::Style::quotation:
      canvas_.nested("> ", [&] { canvas_.text(text.text, inkOf(text.tone)); });
      break;
  }
}

void NodePainter::kind(const Tiles& tiles) {
  std::vector<Runs> stacks;
  for (const StatTile& tile : tiles.tiles) {
    const Ink ink = inkOf(tile.band, tile.tone == Tone::plain ? Ink::strong : inkOf(tile.tone));
    Runs stack{{tile.label, Ink::quiet}, {withGlyph(tile.icon, tile.value), ink}};
    if (!tile.detail.empty()) stack.push_back({tile.detail, Ink::quiet});
    stacks.push_back(std::move(stack));
  }
  canvas_.grid(stacks, minTileWidth);
}

void NodePainter::kind(const Balance& balance) {
  const Ink ink = balance.tone == Tone::plain ? Ink::strong : inkOf(balance.tone);
  canvas_.leader(balance.label, balance.net, Ink::plain, ink);
  canvas_.line({{balance.income, Ink::strong}, {" | "}, {balance.expenses, inkOf(Tone::warning)}});
}

// A label with a drawing beside it, at the same column on the whole page so that bars can be compared; on
// separate lines if it does not fit.
void NodePainter::labelled(const std::string& label, Runs drawn, std::string margin) {
  const bool beside =
      columnsOf(label) < gaugeLabelWidth && gaugeLabelWidth + columnsOf(drawn) <= canvas_.width();
  if (!beside && !label.empty()) {
    canvas_.text(label, Ink::plain, std::exchange(margin, ""), 2);
  } else if (!label.empty()) {
    drawn.insert(drawn.begin(), {label + repeated(" ", gaugeLabelWidth - columnsOf(label))});
  }
  canvas_.line(std::move(drawn), std::move(margin));
}

void NodePainter::gauge(const std::string& label, double share, const std::string& text, Ink ink,
                        std::string margin) {
  const int width = std::min(gaugeWidth, canvas_.width() / 3);
  Runs drawn{{"["}, {bar(canvas_.glyphs(), share, width), ink}, {"]"}};
  const bool shortText = width + 4 + columnsOf(text) <= canvas_.width();
  if (shortText && !text.empty()) drawn.push_back({"  " + text});
  labelled(label, std::move(drawn), std::move(margin));
  if (!shortText) canvas_.text(text, Ink::plain);
}

void NodePainter::kind(const Meter& meter) {
  gauge(meter.label, shareOf(meter.value, meter.maximum), meter.text, inkOf(meter.band, Ink::accent), "");
}

void NodePainter::kind(const Stars& stars) {
  const int of = std::clamp(stars.outOf, 0, 20);
  const double value = shareOf(stars.value, of) * of;
  const int halves = static_cast<int>(std::lround(value * 2));
  const Glyphs& glyphs = canvas_.glyphs();
  const std::string drawn = repeated(glyphs.star, halves / 2) + repeated(glyphs.halfStar, halves % 2) +
                            repeated(glyphs.noStar, of - halves / 2 - halves % 2);
  // Stars are drawn in halves; the figure beside them is exact.
  labelled(stars.label, {{drawn}, {std::format("  {:g} of {}", std::round(value * 10) / 10, of)}}, "");
}

void NodePainter::kind(const Chart& chart) { drawChart(canvas_, chart); }

void NodePainter::kind(const Picture& picture) {
  if (const std::string words = inWords(picture); !words.empty()) canvas_.text(words, Ink::quiet);
}

void NodePainter::kind(const Bubble& bubble) {
  const int width = canvas_.width();
  const int side = columnsOf(canvas_.glyphs().side);
  const int widest = width * bubbleShare / 4 - side;
  const auto atRight = [&](const std::string& text, const std::string& edge, Ink ink) {
    const int pad = std::max(0, width - columnsOf(text) - side);
    canvas_.line({{repeated(" ", pad)}, {text, ink}, {edge, Ink::accent}});
  };
  if (!bubble.mine) {
    if (!bubble.speaker.empty()) canvas_.text(bubble.speaker, Ink::strong);
    for (std::string& part : wrapped(bubble.text, widest)) {
      canvas_.line({{std::string(canvas_.glyphs().side), Ink::quiet}, {std::move(part)}});
    }
    return;
  }
  const std::string edge = " " + std::string(canvas_.glyphs().axis);
  if (!bubble.speaker.empty()) atRight(bubble.speaker, "  ", Ink::strong);
  for (const std::string& part : wrapped(bubble.text, widest)) atRight(part, edge, Ink::plain);
}

void NodePainter::kind(const TimelineEntry& entry) {
  if (columnsOf(entry.when) > whenWidth) {
    canvas_.text(entry.when, Ink::accent);
    canvas_.nested("  ", [&] { canvas_.text(entry.text, Ink::plain); });
    return;
  }
  std::string when = entry.when + repeated(" ", whenWidth - columnsOf(entry.when));
  const int width = canvas_.width() - whenWidth - 2;
  for (std::string& part : wrapped(entry.text, std::max(1, width))) {
    canvas_.line({{std::move(when), Ink::accent},
                  {std::string(canvas_.glyphs().side), Ink::quiet},
                  {std::move(part)}});
    when = repeated(" ", whenWidth);
  }
}

void NodePainter::kind(const Countdown& countdown) {
  counting_ = counting_ || countdown.secondsLeft > 0;
  gauge(countdown.label, shareOf(countdown.secondsLeft, countdown.secondsInAll), clock(countdown.secondsLeft),
        Ink::accent, "");
}

// --- Nodes with operations ---

void NodePainter::kind(const Button& button) { drawButton(canvas_, targets_, button); }

// On one line if they fit, else one per line.
void NodePainter::kind(const Buttons& buttons) {
  std::vector<Runs> items;
  bool off = false;
  for (const Button& button : buttons.buttons) {
    items.push_back(buttonRuns(targets_, button));
    off = off || !button.offReason.empty();
  }
  std::vector<Runs> rows = rowsOf(items, flowGap, canvas_.width());
  if (off || rows.size() > 1) {
    for (const Button& button : buttons.buttons) drawButton(canvas_, targets_, button);
  } else if (rows.size() == 1) {
    Runs& row = rows.front();
    std::string margin;
    if (buttons.buttons.front().handle != 0) {
      // The first button's number goes to the margin.
      margin = trimmed(row.front().text);
      row.erase(row.begin());
    }
    canvas_.line(std::move(row), std::move(margin));
  }
}

void NodePainter::kind(const Row& row) {
  const std::string mark = targets_.add(row.handle, {.label = row.label});
  canvas_.leader(stepMark(row.step) + row.label, row.value, row.tone == Tone::quiet ? Ink::quiet : Ink::plain,
                 inkOf(row.band, inkOf(row.tone)), mark);
  canvas_.nested("  ", [&] {
    if (!row.detail.empty()) canvas_.text(row.detail, Ink::quiet);
    if (const std::string words = inWords(row.picture); !words.empty()) canvas_.text(words, Ink::quiet);
    for (const Button& action : row.action) drawButton(canvas_, targets_, action);
  });
}

void NodePainter::kind(const Headline& headline) {
  const std::string mark = targets_.add(headline.handle, {.label = headline.text});
  const std::string stamp = headline.stamp.empty() ? "" : headline.stamp + ": ";
  const Ink ink = headline.tone == Tone::quiet ? Ink::quiet : Ink::plain;
  const auto detail = [&] {
    if (!headline.detail.empty()) canvas_.text(headline.detail, Ink::quiet);
    if (const std::string words = inWords(headline.picture); !words.empty()) canvas_.text(words, Ink::quiet);
  };
  if (!headline.isLead) {
    canvas_.leader(stamp + headline.text, headline.value, ink, inkOf(headline.tone), mark);
    return canvas_.nested("  ", detail);
  }
  canvas_.gap();
  canvas_.framed(headline.stamp, mark, [&] {
    canvas_.text(headline.text, ink);
    if (!headline.value.empty()) canvas_.text(headline.value, inkOf(headline.tone));
    detail();
  });
  canvas_.gap();
}

void NodePainter::kind(const Post& post) {
  const std::string mark = targets_.add(post.handle, {.label = post.author});
  if (!post.note.empty()) canvas_.text(post.note, Ink::quiet);
  const std::string author =
      post.isVerified ? post.author + " " + std::string(canvas_.glyphs().star) : post.author;
  canvas_.leader(author, post.when, post.mine ? Ink::accent : Ink::strong, Ink::quiet, mark);
  canvas_.nested("  ", [&] {
    canvas_.text(post.text, Ink::plain);
    canvas_.text(std::format("{} comments, {} rechirps, {} likes", post.comments, post.reposts, post.likes),
                 Ink::quiet);
    for (const Button& action : post.actions) drawButton(canvas_, targets_, action);
  });
}

void NodePainter::kind(const Place& place) {
  const std::string mark = targets_.add(place.handle, {.label = place.label});
  const std::string moved = place.moved.empty() ? "" : " (" + place.moved + ")";
  canvas_.leader(std::format("{}. {}{}", place.place, place.label, moved), place.value,
                 place.tone == Tone::quiet ? Ink::quiet : inkOf(place.tone), Ink::plain, mark);
  if (!place.detail.empty()) canvas_.nested("  ", [&] { canvas_.text(place.detail, Ink::quiet); });
}

void NodePainter::kind(const Field& field) {
  const std::string mark = targets_.add(field.handle, {.kind = Target::Kind::field,
                                                       .label = field.label,
                                                       .value = field.value,
                                                       .maximumLength = field.maximumLength,
                                                       .severalLines = field.severalLines});
  if (field.severalLines && !field.value.empty()) {
    canvas_.text(field.label + ":", Ink::plain, mark);
    canvas_.nested("  ", [&] { canvas_.text(field.value, Ink::strong); });
  } else {
    canvas_.text(field.label + ": " + (field.value.empty() ? "____" : field.value), Ink::plain, mark, 2);
  }
  if (!field.hint.empty()) canvas_.nested("  ", [&] { canvas_.text(field.hint, Ink::quiet); });
}

void NodePainter::kind(const Slider& slider) {
  const std::string range = std::format("{} to {}", number(slider.minimum), number(slider.maximum));
  const std::string mark =
      targets_.add(slider.handle, {.kind = Target::Kind::slider, .label = slider.label, .range = range});
  gauge(slider.label, shareOf(slider.value - slider.minimum, slider.maximum - slider.minimum), slider.text,
        Ink::accent, mark);
  std::string how =
      slider.handle == 0 ? range : std::format("type {} and a number: {}", slider.handle, range);
  if (slider.step != 1 && slider.step > 0) how += std::format(", in steps of {}", number(slider.step));
  canvas_.nested("  ", [&] { canvas_.text(how, Ink::quiet); });
}

// Options in columns: "(*)" marks a single choice, "(x)" one of several.
void NodePainter::kind(const Choice& choice) {
  if (!choice.label.empty()) {
    canvas_.text(choice.label + (choice.several ? " (any number of them)" : "") + ":", Ink::plain);
  }
  Runs cells;
  int widest = 0;
  for (const Choice::Option& option : choice.options) {
    const std::string mark = targets_.add(option.handle, {.label = option.label});
    const std::string_view state = option.chosen ? (choice.several ? "(x)" : "(*)") : "( )";
    std::string words = std::format("{}{}{} {}", mark, mark.empty() ? "" : " ", state, option.label);
    if (const std::string picture = inWords(option.picture); !picture.empty()) words += " " + picture;
    widest = std::max(widest, columnsOf(words));
    cells.push_back({std::move(words), option.chosen ? Ink::strong : Ink::plain});
  }
  std::vector<Runs> stacks;
  for (Run& cell : cells) stacks.push_back({std::move(cell)});
  canvas_.nested("  ", [&] { canvas_.grid(stacks, std::min(widest, canvas_.width())); });
}

// --- Containers ---

void NodePainter::kind(const Section& section) {
  if (depth_ == 0) {
    canvas_.headline(section.heading);
  } else if (!section.heading.empty()) {
    canvas_.text(section.heading, Ink::strong);
  }
  several(section.nodes);
}

void NodePainter::kind(const Fold& fold) {
  const std::string mark = targets_.add(fold.handle, {.label = fold.label});
  canvas_.text((fold.isOpen ? "- " : "+ ") + fold.label, Ink::quiet, mark, 2);
  canvas_.nested("  ", [&] { several(fold.nodes); });
}

void NodePainter::kind(const Card& card) {
  const std::string mark = targets_.add(card.handle, {.label = card.title});
  if (card.subtitle.empty() && inWords(card.picture).empty() && card.nodes.empty()) {
    // No frame: the card has no text besides its title.
    return canvas_.text(card.title, Ink::strong, mark);
  }
  canvas_.framed(card.title, mark, [&] {
    if (!card.subtitle.empty()) canvas_.text(card.subtitle, Ink::quiet);
    if (const std::string words = inWords(card.picture); !words.empty()) canvas_.text(words, Ink::quiet);
    several(card.nodes);
  });
}

void NodePainter::kind(const SwipeCard& swipe) {
  kind(swipe.card);
  kind(Buttons{{swipe.left, swipe.right}});
}

// layOut() replaces it by a ListPage.
void NodePainter::kind(const PagedList&) {}

void NodePainter::kind(const ListPage& list) {
  several(list.nodes);
  if (list.position.empty()) return;
  std::vector<Runs> items{{{list.position, Ink::quiet}}};
  for (const Button& turn : list.turns) items.push_back(buttonRuns(targets_, turn));
  canvas_.flow(items);
}

}  // namespace tb::console
