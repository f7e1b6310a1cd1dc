#include "tests/player.h"

#include <algorithm>
#include <array>
#include <format>
#include <map>
#include <string_view>
#include <utility>

#include "core/columns.h"
#include "core/load_world.h"
#include "core/save.h"
#include "core/save_store.h"
#include "tests/core/typed_variables.h"

namespace tb::test {

namespace {

using namespace view;

std::string joined(std::initializer_list<std::string> parts) {
  std::string line;
  for (const std::string& part : parts) {
    if (!part.empty()) line += (line.empty() ? "" : " | ") + part;
  }
  return line;
}

// The tone as text, because a shell shows it by color. Empty for plain.
std::string toneMark(Tone tone) {
  constexpr std::array marks = {"", " <quiet>", " <good>", " <warning>", " <accent>"};
  return marks[static_cast<std::size_t>(tone)];
}
std::string iconMark(Icon icon) {
  constexpr std::array marks = {"", "🏠", "🎬", "💬", "⚡️", "💰", "B", "⚙️", "⚡️"};
  return marks[static_cast<std::size_t>(icon)];
}
std::string withIcon(Icon icon, const std::string& words) {
  return icon == Icon::none ? words : iconMark(icon) + " " + words;
}
std::string bandMark(Band band) {
  constexpr std::array marks = {"", " <poor>", " <fair>", " <good>", " <great>"};
  return marks[static_cast<std::size_t>(band)];
}
std::string inWords(const Price& price) {
  return price.amount.empty() ? "" : withIcon(price.icon, price.amount);
}
std::string weightMark(Button::Weight weight) {
  constexpr std::array marks = {"", " <primary>", " <quiet>", " <destructive>", " <done>"};
  return marks[static_cast<std::size_t>(weight)];
}
std::string styleMark(Text::Style style) {
  constexpr std::array marks = {"", " <large>", " <caption>", " <quotation>", " <heading>"};
  return marks[static_cast<std::size_t>(style)];
}

std::string stepMark(Row::Step step) {
  constexpr std::array marks = {"", "( ) ", "(x) "};
  return marks[static_cast<std::size_t>(step)];
}

// The text without digits.
std::string withoutDigits(std::string text) {
  std::erase_if(text, [](char letter) { return letter >= '0' && letter <= '9'; });
  return text;
}

// Visits every text and every usable item of a laid-out page.
template <class OnText, class OnUse>
class Walk {
 public:
  Walk(OnText onText, OnUse onUse) : text_(onText), use_(onUse) {}

  void page(const Page& page) {
    if (!page.dialog.empty()) {
      text_(page.dialog.front().title);
      text_(page.dialog.front().message);
      for (const Button& answer : page.dialog.front().answers) node(answer);
    }
    for (const Moment& moment : page.moment) {
      constexpr std::array scenes = {"deal", "curtain", "marquee"};
      text_(joined({scenes[static_cast<std::size_t>(moment.scene)], moment.title, moment.line}));
      for (const Picture& picture : moment.picture) node(picture);
    }
    text_(page.title);
    text_(page.subtitle);
    for (const Tab& icon : page.icons) node(icon);
    for (const Button& close : page.close) node(close);
    for (const StatTile& figure : page.figures) {
      text_(figure.label + ": " + joined({withIcon(figure.icon, figure.value), figure.detail}) +
            toneMark(figure.tone));
    }
    on_page_ = true;
    nodes(page.nodes);
    for (const Button& main : page.main) {
      on_page_ = main.label != "End Week";  // End Week is on every page
      node(main);
    }
    on_page_ = false;
    for (const Tab& tab : page.tabs) node(tab);
    for (const PassingLine& passing : page.passing) text_("(" + passing.text + ")");
  }

 private:
  using Kind = Player::Usable::Kind;

  void use(Player::Usable usable) {
    if (usable.handle == 0) return;
    usable.onPage = on_page_;
    usable.item = item_;
    usable.likeness = likeness_;
    use_(usable);
  }
  void press(const std::string& label, Handle handle, const std::string& name = "") {
    use({.label = label, .handle = handle, .kind = Kind::press, .name = name});
  }
  void nodes(const std::vector<Node>& nodes) {
    for (const Node& each : nodes) std::visit([this](const auto& kind) { this->node(kind); }, each.node);
  }
  // Visits an item of a list together with its contents.
  template <class Visit>
  void asItem(const std::string& likeness, Visit visit) {
    const std::string outer = likeness_;
    if (outer.empty()) {
      item_ += 1;
      likeness_ = likeness;
    }
    visit();
    likeness_ = outer;
  }

  void node(const Tab& tab) {
    text_("[" + tab.label + "] " + iconMark(tab.icon) + (tab.current ? " <current>" : ""));
    press(tab.label, tab.handle);
  }
  void node(const Text& text) {
    if (!text.text.empty()) text_(text.text + styleMark(text.style) + toneMark(text.tone));
  }
  void node(const Tiles& tiles) {
    for (const StatTile& tile : tiles.tiles) {
      text_(tile.label + ": " + joined({withIcon(tile.icon, tile.value), tile.detail}) + toneMark(tile.tone) +
            bandMark(tile.band));
    }
  }
  void node(const Meter& meter) {
    text_(std::format("{}: {} ({} of {})", meter.label, meter.text, meter.value, meter.maximum) +
          bandMark(meter.band));
  }
  void node(const Balance& balance) {
    text_(balance.label + ": " + balance.net + toneMark(balance.tone));
    text_(balance.income + " | " + balance.expenses);
  }
  void node(const Stars& stars) {
    text_(std::format("{}: {} of {} stars", stars.label, stars.value, stars.outOf));
  }
  void node(const Button& button) {
    text_(joined({"[" + button.label + "]", inWords(button.price), button.offReason, button.refusal}) +
          weightMark(button.weight));
    press(button.label, button.handle, button.name);
  }
  void node(const Buttons& buttons) {
    for (const Button& button : buttons.buttons) node(button);
  }
  void node(const Row& row) {
    const std::string label = row.press ? "[" + row.label + "]" : row.label;
    text_(stepMark(row.step) + joined({label, row.value, row.detail}) + toneMark(row.tone) +
          bandMark(row.band));
    for (const Picture& picture : row.picture) node(picture);
    press(row.label, row.handle);
    for (const Button& action : row.action) node(action);
  }
  void node(const Headline& headline) {
    const std::string text = headline.press ? "[" + headline.text + "]" : headline.text;
    text_(joined({headline.stamp, text, headline.detail, headline.value}) + toneMark(headline.tone) +
          (headline.isLead ? " <lead>" : ""));
    for (const Picture& picture : headline.picture) node(picture);
    press(headline.text, headline.handle);
  }
  void node(const Field& field) {
    text_(joined(
        {field.label + ": " + field.value, field.hint, std::format("{} characters", field.maximumLength)}));
    use({.label = field.label, .handle = field.handle, .kind = Kind::type});
  }
  void node(const Slider& slider) {
    text_(std::format("{}: {} ({}, {} to {} by {})", slider.label, slider.text, slider.value, slider.minimum,
                      slider.maximum, slider.step));
    use({.label = slider.label,
         .handle = slider.handle,
         .kind = Kind::slide,
         .minimum = slider.minimum,
         .maximum = slider.maximum});
  }
  void node(const Choice& choice) {
    text_(choice.label);
    for (const Choice::Option& option : choice.options) {
      asItem(withoutDigits("option " + option.label), [&] {
        text_("(" + option.label + ")" + (option.chosen ? " <chosen>" : ""));
        for (const Picture& picture : option.picture) node(picture);
        press(option.label, option.handle);
      });
    }
  }
  void node(const Chart& chart) {
    constexpr std::array kinds = {"line", "bars", "pie", "histogram"};
    text_(chart.title);
    text_(joined({kinds[static_cast<std::size_t>(chart.kind)], chart.summary}));
    std::string scale;
    for (const Chart::Tick& tick : chart.scale) scale += (scale.empty() ? "scale " : ", ") + tick.text;
    text_(scale);
    constexpr std::size_t pointsOnALine = 6;
    std::string line;
    for (std::size_t index = 0; index < chart.points.size(); ++index) {
      const Chart::Point& point = chart.points[index];
      line += (line.empty() ? "" : "; ") + point.label + " " + point.text;
      if (index % pointsOnALine == pointsOnALine - 1) text_(std::exchange(line, ""));
    }
    text_(line);
  }
  void node(const Picture& picture) {
    constexpr std::array kinds = {"avatar", "poster", "logo", "house", "vehicle", "card", "photo", "icon"};
    constexpr std::array formats = {"", "series", "commercial", "student", "short"};
    const std::string number = picture.season != 0 ? std::format("season {}", picture.season)
                               : picture.age != 0  ? std::format("aged {}", picture.age)
                                                   : "";
    text_(std::format("({})",
                      joined({std::string(kinds[static_cast<std::size_t>(picture.kind)]) + " " + picture.name,
                              picture.title, picture.genre, formats[static_cast<std::size_t>(picture.format)],
                              number, picture.billed, picture.description})));
  }
  void node(const Bubble& bubble) {
    text_((bubble.mine ? "(mine) " : "") + bubble.speaker + ": " + bubble.text);
  }
  void node(const TimelineEntry& entry) { text_(entry.when + " " + entry.text); }
  void node(const Countdown& countdown) {
    text_(std::format("{} {} of {} s", countdown.label, countdown.secondsLeft, countdown.secondsInAll));
  }
  void node(const Section& section) {
    text_(section.heading);
    nodes(section.nodes);
  }
  void node(const Fold& fold) {
    text_("[" + fold.label + "]" + (fold.isOpen ? " <open>" : ""));
    press(fold.label, fold.handle);
    nodes(fold.nodes);
  }
  void node(const Card& card) {
    asItem(withoutDigits("card " + card.subtitle), [&] {
      text_(joined({card.press ? "[" + card.title + "]" : card.title, card.subtitle}));
      for (const Picture& picture : card.picture) node(picture);
      press(card.title, card.handle);
      nodes(card.nodes);
    });
  }
  void node(const SwipeCard& swipe) {
    node(swipe.card);
    node(swipe.left);
    node(swipe.right);
  }
  void node(const PagedList&) { ADD_FAILURE() << "a list that was not laid out"; }
  void node(const ListPage& list) {
    for (const Node& each : list.nodes) {
      const Row* const row = std::get_if<Row>(&each.node);
      asItem(row != nullptr ? withoutDigits("row " + row->value + " " + row->detail) : "",
             [&] { std::visit([this](const auto& kind) { this->node(kind); }, each.node); });
    }
    text_(list.position);
    for (const Button& turn : list.turns) node(turn);
  }

  OnText text_;
  OnUse use_;
  bool on_page_ = false;
  int item_ = 0;
  std::string likeness_;
};

}  // namespace

// The state in the store. Decodes only what was written since the last comparison.
class StoredWorld {
 public:
  explicit StoredWorld(const Game& game) : stored_{.store = game.store, .random = game.random} {}

  void expectSameAs(const WorldState& world, const std::string& used) {
    // Another career has other keys.
    if (std::ranges::any_of(seen_, [&](const auto& seen) {
          return !seen.second.pieces.empty() && !stored_.store.contains(seen.first);
        })) {
      seen_.clear();
      loadWorld(stored_);
    }
    for (const Variable& variable : variables()) {
      if (variable.load == Load::atStart && isChanged(variable)) loadVariable(stored_, variable);
    }
    forEachVariable([&]<auto Member>(std::string_view key, const auto&, const auto&, Load when) {
      if (when != Load::atStart) return;
      EXPECT_TRUE(stored_.world.*Member == world.*Member) << key << " is not saved after: " << used;
    });
  }

 private:
  // True when the store's value changed since the last comparison.
  bool isChanged(const Variable& variable) {
    bool changed = isChanged(std::string(variable.key));
    for (const FieldType& field : variable.type->fields) {
      if (field.isColumn && isChanged(columnKey(variable.key, field.name))) changed = true;
    }
    return changed;
  }
  bool isChanged(const std::string& key) {
    static const SaveStore::Entry none;
    const SaveStore::Entry* const entry = stored_.store.entry(key);
    const SaveStore::Entry& now = entry != nullptr ? *entry : none;
    SaveStore::Entry& seen = seen_[key];
    if (seen.pieces == now.pieces) return false;
    seen = now;
    return true;
  }

  Game stored_;
  std::map<std::string, SaveStore::Entry> seen_;
};

Player::Player(App& app) : app_(app), stored_(std::make_shared<StoredWorld>(app.game())) {}

std::vector<std::string> Player::words() const {
  std::vector<std::string> words;
  Walk(
      [&](const std::string& text) {
        if (!text.empty()) words.push_back(text);
      },
      [](const Usable&) {})
      .page(app_.view());
  return words;
}

std::vector<Player::Usable> Player::usable() const {
  std::vector<Usable> found;
  Walk([](const std::string&) {}, [&](const Usable& usable) { found.push_back(usable); }).page(app_.view());
  return found;
}

bool Player::sees(const std::string& text) const {
  return std::ranges::any_of(words(), [&](const std::string& line) { return line.contains(text); });
}

void Player::expectSees(std::initializer_list<std::string> texts) const {
  for (const std::string& text : texts) {
    EXPECT_TRUE(sees(text)) << text << " is not on " << title() << ": " << testing::PrintToString(words());
  }
}

std::string Player::notice() const {
  const auto& dialog = app_.view().dialog;
  return dialog.empty() ? "" : dialog.front().title;
}

std::string Player::said() const {
  const auto& passing = app_.view().passing;
  return passing.empty() ? "" : passing.front().text;
}

Player::Usable Player::find(const std::string& label, Usable::Kind kind) const {
  for (const Usable& usable : this->usable()) {
    const bool hasThatName = usable.label == label || usable.name == label;
    if (hasThatName && usable.kind == kind) return usable;
  }
  ADD_FAILURE() << "nothing to use is called " << label << " on " << title();
  return {.label = label, .handle = 0, .kind = kind};
}

void Player::press(const Usable& usable) {
  app_.press(usable.handle);
  stored_->expectSameAs(app_.game().world, usable.label);
}
void Player::type(const Usable& usable, const std::string& text) {
  app_.type(usable.handle, text);
  stored_->expectSameAs(app_.game().world, usable.label);
}
void Player::slide(const Usable& usable, double value) {
  app_.slide(usable.handle, value);
  stored_->expectSameAs(app_.game().world, usable.label);
}

void Player::press(const std::string& label) { press(find(label, Usable::Kind::press)); }
void Player::follow(std::initializer_list<std::string> labels) {
  for (const std::string& label : labels) press(label);
}
void Player::expectTold(const std::string& title) {
  EXPECT_EQ(notice(), title);
  press("OK");
}
void Player::type(const std::string& label, const std::string& text) {
  type(find(label, Usable::Kind::type), text);
}
void Player::slide(const std::string& label, double value) { slide(find(label, Usable::Kind::slide), value); }

}  // namespace tb::test
