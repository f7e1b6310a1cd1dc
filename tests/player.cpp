#include "tests/player.h"

#include <algorithm>

namespace tb::test {

namespace {

using namespace view;

// Walks a laid-out page and hands every text and every usable thing to the visitor.
template <class OnText, class OnUse>
class Walk {
 public:
  Walk(OnText on_text, OnUse on_use) : text_(on_text), use_(on_use) {}

  void page(const Page& page) {
    if (!page.dialog.empty()) {
      text_(page.dialog.front().title);
      text_(page.dialog.front().message);
      for (const Button& answer : page.dialog.front().answers) node(answer);
    }
    for (const Moment& moment : page.moment) {
      text_(moment.title);
      text_(moment.line);
    }
    text_(page.title);
    text_(page.subtitle);
    for (const Tab& icon : page.icons) press(icon.label, icon.handle);
    for (const Button& close : page.close) node(close);
    for (const StatTile& figure : page.figures)
      text_(figure.label + ": " + figure.value + " " + figure.detail);
    nodes(page.nodes);
    for (const Button& main : page.main) node(main);
    for (const Tab& tab : page.tabs) press(tab.label, tab.handle);
  }

 private:
  using Kind = Player::Usable::Kind;

  void press(const std::string& label, Handle handle, const std::string& name = "") {
    text_(label);
    if (handle != 0) use_({.label = label, .handle = handle, .kind = Kind::press, .name = name});
  }
  void nodes(const std::vector<Node>& nodes) {
    for (const Node& each : nodes) std::visit([this](const auto& kind) { this->node(kind); }, each.node);
  }

  void node(const Text& text) { text_(text.text); }
  void node(const Tiles& tiles) {
    for (const StatTile& tile : tiles.tiles) text_(tile.label + ": " + tile.value + " " + tile.detail);
  }
  void node(const Meter& meter) { text_(meter.label + ": " + meter.text); }
  void node(const Balance& balance) {
    text_(balance.label + ": " + balance.net);
    text_(balance.income + " | " + balance.expenses);
  }
  void node(const Stars& stars) { text_(stars.label); }
  void node(const Button& button) {
    press(button.label, button.handle, button.name);
    text_(button.price);
    text_(button.offReason);
    text_(button.refusal);
  }
  void node(const Buttons& buttons) {
    for (const Button& button : buttons.buttons) node(button);
  }
  void node(const Row& row) {
    press(row.label, row.handle);
    text_(row.value);
    text_(row.detail);
    for (const Button& action : row.action) node(action);
  }
  void node(const Headline& headline) {
    text_(headline.stamp);
    press(headline.text, headline.handle);
    text_(headline.detail);
    text_(headline.value);
  }
  void node(const Field& field) {
    text_(field.label + ": " + field.value);
    if (field.handle != 0) use_({.label = field.label, .handle = field.handle, .kind = Kind::type});
  }
  void node(const Slider& slider) {
    text_(slider.label + ": " + slider.text);
    if (slider.handle != 0) {
      use_({.label = slider.label,
            .handle = slider.handle,
            .kind = Kind::slide,
            .minimum = slider.minimum,
            .maximum = slider.maximum});
    }
  }
  void node(const Choice& choice) {
    text_(choice.label);
    for (const Choice::Option& option : choice.options) press(option.label, option.handle);
  }
  void node(const Chart& chart) {
    text_(chart.title);
    text_(chart.summary);
    for (const Chart::Point& point : chart.points) text_(point.text);
  }
  void node(const Picture& picture) { text_(picture.description); }
  void node(const Bubble& bubble) { text_(bubble.speaker + ": " + bubble.text); }
  void node(const TimelineEntry& entry) { text_(entry.when + " " + entry.text); }
  void node(const Countdown& countdown) { text_(countdown.label); }
  void node(const Section& section) {
    text_(section.heading);
    nodes(section.nodes);
  }
  void node(const Fold& fold) {
    press(fold.label, fold.handle);
    nodes(fold.nodes);
  }
  void node(const Card& card) {
    press(card.title, card.handle);
    text_(card.subtitle);
    nodes(card.nodes);
  }
  void node(const SwipeCard& swipe) {
    node(swipe.card);
    node(swipe.left);
    node(swipe.right);
  }
  void node(const PagedList&) { ADD_FAILURE() << "a list that was not laid out"; }
  void node(const ListPage& list) {
    nodes(list.nodes);
    text_(list.position);
    for (const Button& turn : list.turns) node(turn);
  }

  OnText text_;
  OnUse use_;
};

}  // namespace

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

Handle Player::find(const std::string& label, Usable::Kind kind) const {
  for (const Usable& usable : this->usable()) {
    const bool is_called_so = usable.label == label || usable.name == label;
    if (is_called_so && usable.kind == kind) return usable.handle;
  }
  ADD_FAILURE() << "nothing to use is called " << label << " on " << title();
  return 0;
}

void Player::press(const std::string& label) { app_.press(find(label, Usable::Kind::press)); }
void Player::follow(std::initializer_list<std::string> labels) {
  for (const std::string& label : labels) press(label);
}
void Player::expectTold(const std::string& title) {
  EXPECT_EQ(notice(), title);
  press("OK");
}
void Player::type(const std::string& label, const std::string& text) {
  app_.type(find(label, Usable::Kind::type), text);
}
void Player::slide(const std::string& label, double value) {
  app_.slide(find(label, Usable::Kind::slide), value);
}

}  // namespace tb::test
