#include "tests/screens/walk.h"

#include <algorithm>
#include <deque>
#include <format>
#include <map>
#include <set>
#include <utility>

namespace tb::test {

namespace {

using Lines = std::vector<std::string>;
using Usable = Player::Usable;

constexpr std::size_t mostPages = 500;  // more than any career has
constexpr std::uint64_t seed = 7;

// The path to a page: presses by index among the usable items.
struct Path {
  struct Press {
    std::size_t place;
    std::string label;
  };
  std::vector<Press> presses;
  bool isTurned = false;  // the last press changed the view of the same screen, such as a tab

  [[nodiscard]] Path with(std::size_t place, const std::string& label, bool turned) const {
    Path longer = *this;
    longer.presses.push_back({place, label});
    longer.isTurned = turned;
    return longer;
  }
  [[nodiscard]] std::string text() const { return textOf(presses.size()); }
  // The text of the path to the screen, without a change of view.
  [[nodiscard]] std::string screenText() const { return textOf(presses.size() - (isTurned ? 1 : 0)); }

 private:
  [[nodiscard]] std::string textOf(std::size_t count) const {
    std::string text = "Home";
    for (std::size_t index = 0; index < count; ++index) text += " > " + presses[index].label;
    return text;
  }
};

Lines added(const Lines& before, const Lines& now) {
  std::multiset<std::string> old(before.begin(), before.end());
  Lines lines;
  for (const std::string& line : now) {
    if (const auto found = old.find(line); found != old.end()) {
      old.erase(found);
    } else {
      lines.push_back(line);
    }
  }
  return lines;
}

std::string joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\n";
  return text;
}

// Indexes of the usable items to press.
std::vector<std::size_t> worthAPress(const std::vector<Usable>& usable, const Path& path) {
  std::vector<std::size_t> places;
  std::map<std::string, int> firstLike;
  for (std::size_t place = 0; place < usable.size(); ++place) {
    const Usable& use = usable[place];
    if (use.kind != Usable::Kind::press) continue;
    if (!use.onPage && !path.presses.empty()) continue;
    if (!use.likeness.empty() && firstLike.try_emplace(use.likeness, use.item).first->second != use.item) {
      continue;
    }
    places.push_back(place);
  }
  return places;
}

class Explorer {
 public:
  Explorer(Device& device, SeededRandom& random)
      : device_(device), random_(random), stored_(device.port.pieces), documents_(device.documents.files) {}

  std::string explore() {
    waiting_.push_back({});
    for (; !waiting_.empty() && seen_.size() < mostPages; waiting_.pop_front()) visit(waiting_.front());
    EXPECT_TRUE(waiting_.empty()) << "the walk does not end";
    return std::move(text_);
  }

 private:
  [[nodiscard]] int screen() const { return device_.app().view().screen; }
  [[nodiscard]] Lines words() const { return device_.player().words(); }

  void press(std::size_t place) {
    random_.seed(seed);
    device_.app().press(device_.player().usable()[place].handle);
    device_.player().answerStory();  // which has a golden file of its own
  }
  void launch() {
    device_.port.pieces = stored_;
    device_.documents.files = documents_;
    random_.seed(seed);
    device_.launch();
    launched_ = device_.writes();
    if (home_.empty()) home_ = words();
  }
  // Goes back to the hub; false if something was written since the launch.
  bool goHome() {
    if (device_.writes() != launched_ || !device_.app().view().dialog.empty()) return false;
    while (!device_.app().view().close.empty()) device_.app().back();
    device_.player().press("Home");
    return device_.writes() == launched_ && words() == home_;
  }
  void goTo(const Path& path) {
    if (home_.empty() || !goHome()) launch();
    for (const Path::Press& step : path.presses) press(step.place);
    commits_ = device_.writes();
  }
  // Returns to the path's page after a press. A press without writes is undone by answering its notice or
  // with Back; otherwise the game is launched again.
  void returnTo(const Path& path, int page, const Lines& words) {
    if (device_.writes() == commits_) {
      const auto& dialog = device_.app().view().dialog;
      if (!dialog.empty() && dialog.front().answers.size() == 1) {
        device_.app().press(dialog.front().answers.front().handle);
      }
      if (screen() > page) device_.app().back();
      if (device_.writes() == commits_ && screen() == page && this->words() == words) return;
    }
    goTo(path);
  }

  void visit(const Path& path) {
    goTo(path);
    const Lines page = words();
    if (!seen_.insert(joined(page)).second) return;
    text_ += std::format("==== {}\n{}", path.text(), joined(page));
    const std::vector<Usable> usable = device_.player().usable();
    std::set<std::string>& tried = tried_[path.screenText()];
    const std::set<std::string> before = path.isTurned ? tried : std::set<std::string>();
    for (const std::size_t place : worthAPress(usable, path)) {
      if (before.contains(usable[place].label)) continue;  // also exists in the other view
      tried.insert(usable[place].label);
      const int number = screen();  // changes each time the screen is opened
      press(place);
      text_ += std::format("-- {}: {}\n", usable[place].label,
                           outcome(path, page, number, place, usable[place].label));
      returnTo(path, number, page);
    }
  }

  std::string outcome(const Path& path, const Lines& before, int page, std::size_t place,
                      const std::string& label) {
    const view::Page& now = device_.app().view();
    if (!now.dialog.empty()) return "asks " + now.dialog.front().title + " " + now.dialog.front().message;
    if (now.screen > page) {
      waiting_.push_back(path.with(place, label, false));
      return "opens " + now.title;
    }
    if (now.screen < page) return "goes back to " + now.title;
    // Tabs are views of the hub, even if they write. Elsewhere a press that writes is an action, not a change
    // of view.
    const bool isSameScreen = path.presses.empty() || device_.writes() == commits_;
    const Lines lines = added(before, words());
    if (lines.empty()) return "changes nothing here";
    if (isSameScreen && !path.isTurned) {
      waiting_.push_back(path.with(place, label, true));
      return "shows another side";
    }
    return "shows\n" + joined(lines);
  }

  Device& device_;
  SeededRandom& random_;
  const decltype(MemoryPort::pieces) stored_;
  const decltype(MemoryDocuments::files) documents_;
  Lines home_;        // words of the hub at launch
  int launched_ = 0;  // number of writes at launch
  int commits_ = 0;   // number of writes on the current page
  std::deque<Path> waiting_;
  std::set<std::string> seen_;                          // pages
  std::map<std::string, std::set<std::string>> tried_;  // pressed items by screen
  std::string text_;
};

}  // namespace

std::string walkAllScreens(Device& device, SeededRandom& random) {
  return Explorer(device, random).explore();
}

}  // namespace tb::test
