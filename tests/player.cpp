#include "tests/player.h"

#include <algorithm>
#include <format>
#include <map>
#include <string_view>
#include <utility>

#include "core/columns.h"
#include "core/load_world.h"
#include "core/save.h"
#include "core/save_store.h"
#include "shells/web/view_fields.h"
#include "tests/core/typed_variables.h"

namespace tb::test {

namespace {

using namespace view;

// The text without digits.
std::string withoutDigits(std::string text) {
  std::erase_if(text, [](char letter) { return letter >= '0' && letter <= '9'; });
  return text;
}

// Structs that are told within the line of the struct that has them.
template <class T>
constexpr bool isInline =
    std::is_same_v<T, Price> || std::is_same_v<T, Chart::Point> || std::is_same_v<T, Chart::Tick>;

// Fields that players do not see.
bool isHidden(std::string_view name) {
  return name == "handle" || name == "key" || name == "number" || name == "screen";
}

template <class Struct>
std::string lineOf(const Struct& shown, const char* between);

// A field as a part of its struct's line; empty if it has lines of its own.
template <class T>
std::string partOf(std::string_view name, const T& field) {
  if constexpr (std::is_same_v<T, std::string>) {
    return field;
  } else if constexpr (std::is_same_v<T, bool>) {
    return field ? std::format("<{}>", name) : "";
  } else if constexpr (std::is_arithmetic_v<T>) {
    return std::format("{} {:.10g}", name, static_cast<double>(field));
  } else if constexpr (std::is_enum_v<T>) {
    return std::format("<{}>", wordOf(field));
  } else if constexpr (isInline<T>) {
    return lineOf(field, " ");
  } else if constexpr (requires { typename T::value_type; }) {
    std::string parts;
    if constexpr (isInline<typename T::value_type>) {
      for (const auto& each : field) parts += (parts.empty() ? "" : "; ") + lineOf(each, " ");
    }
    return parts;
  } else {
    return "";
  }
}

// The fields that differ from a new struct's, in square brackets if the struct can be pressed.
template <class Struct>
std::string lineOf(const Struct& shown, const char* between) {
  static const std::vector<std::string> usual = [] {
    std::vector<std::string> parts;
    forEachField(Struct{},
                 [&](std::string_view name, const auto& field) { parts.push_back(partOf(name, field)); });
    return parts;
  }();
  std::string line;
  std::size_t place = 0;
  forEachField(shown, [&](std::string_view name, const auto& field) {
    const std::string part = partOf(name, field);
    const bool isUsual = part == usual[place++];
    if (isHidden(name) || isUsual) return;
    line += (line.empty() ? "" : between) + part;
  });
  if constexpr (requires { shown.press; }) {
    if (shown.press) line = "[" + line + "]";
  }
  return line;
}

// Visits every text and every usable item of a laid-out page, by the fields of its structs.
template <class OnText, class OnUse>
class Walk {
 public:
  Walk(OnText onText, OnUse onUse) : text_(onText), use_(onUse) {}

  template <class Struct>
  void visit(const Struct& shown) {
    const std::string outer = likeness_;
    const bool isInList = in_list_;
    if (outer.empty()) startItem(shown);
    text_(lineOf(shown, " | "));
    if constexpr (requires { shown.handle; }) use(shown);
    forEachField(shown, [&](std::string_view name, const auto& field) {
      if constexpr (std::is_same_v<Struct, Page>) on_page_ = name == "nodes" || name == "main";
      in_list_ = std::is_same_v<Struct, ListPage>;
      inside(field);
    });
    likeness_ = outer;
    in_list_ = isInList;
  }
  void visit(const Node& node) {
    std::visit([this](const auto& kind) { this->visit(kind); }, node.node);
  }
  void visit(const PagedList&) { ADD_FAILURE() << "a list that was not laid out"; }

 private:
  template <class T>
  void inside(const T& field) {
    if constexpr (std::is_same_v<T, std::string> || isInline<T>) {
      return;
    } else if constexpr (requires { typename T::value_type; }) {
      if constexpr (!isInline<typename T::value_type>) {
        for (const auto& each : field) visit(each);
      }
    } else if constexpr (RecordType<T>) {
      visit(field);
    }
  }

  // Items of lists, cards and options are alike if they differ only in names and figures.
  template <class Struct>
  void startItem(const Struct& shown) {
    if constexpr (std::is_same_v<Struct, Card>) likeness_ = withoutDigits("card " + shown.subtitle);
    if constexpr (std::is_same_v<Struct, Choice::Option>) likeness_ = withoutDigits("option " + shown.label);
    if constexpr (std::is_same_v<Struct, Row>) {
      if (in_list_) likeness_ = withoutDigits("row " + shown.value + " " + shown.detail);
    }
    if (!likeness_.empty()) item_ += 1;
  }

  template <class Struct>
  void use(const Struct& shown) {
    if (shown.handle == 0) return;
    Player::Usable usable{.handle = shown.handle, .item = item_, .likeness = likeness_};
    if constexpr (requires { shown.label; }) {
      usable.label = shown.label;
    } else if constexpr (requires { shown.title; }) {
      usable.label = shown.title;
    } else {
      usable.label = shown.text;
    }
    if constexpr (requires { shown.name; }) usable.name = shown.name;
    if constexpr (requires { shown.type; }) usable.kind = Player::Usable::Kind::type;
    if constexpr (requires { shown.slide; }) {
      usable.kind = Player::Usable::Kind::slide;
      usable.minimum = shown.minimum;
      usable.maximum = shown.maximum;
    }
    usable.onPage = on_page_ && usable.label != "End Week";  // which is on every page
    use_(usable);
  }

  OnText text_;
  OnUse use_;
  bool on_page_ = false;
  bool in_list_ = false;
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
    forEachVariable([&](std::string_view key, auto member, const auto&, const auto&, Load when) {
      if (when != Load::atStart) return;
      EXPECT_TRUE(stored_.world.*member == world.*member) << key << " is not saved after: " << used;
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
      .visit(app_.view());
  return words;
}

std::vector<Player::Usable> Player::usable() const {
  std::vector<Usable> found;
  Walk([](const std::string&) {}, [&](const Usable& usable) { found.push_back(usable); }).visit(app_.view());
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

void Player::answerStory() {
  if (title() != "PUBLIC RELATIONS") return;
  for (const view::Node& node : page().nodes) {
    const auto* const option = std::get_if<view::Card>(&node.node);
    if (option == nullptr) continue;
    const auto& button = std::get<view::Button>(option->nodes.front().node);
    if (!button.price.amount.empty()) continue;
    app_.press(button.handle);
    return app_.press(page().main.front().handle);
  }
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
