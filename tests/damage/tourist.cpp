#include "tests/damage/tourist.h"

#include <algorithm>
#include <array>
#include <set>

namespace tb::test {

namespace {

using std::chrono::steady_clock;

constexpr int deepest = 3;
constexpr int mostPresses = 600;  // of a tour

bool isForTourists(const Player::Usable& use) {
  constexpr std::array avoided = {"Restart", "End Week", "Saves"};
  return use.kind == Player::Usable::Kind::press && !std::ranges::contains(avoided, use.label) &&
         !use.label.starts_with("Empty");
}

}  // namespace

void Tourist::press(view::Handle handle) {
  presses_ += 1;
  const auto start = steady_clock::now();
  app_.press(handle);
  static_cast<void>(app_.view());
  longest_ =
      std::max(longest_, std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - start));
}

// The last answer is the one that does nothing, if there is a choice.
void Tourist::answerDialogs() {
  for (int answers = 0; answers < 10 && !app_.view().dialog.empty(); ++answers) {
    press(app_.view().dialog.front().answers.back().handle);
  }
}

void Tourist::goHome() {
  answerDialogs();
  for (int steps = 0; steps < 10 && app_.view().tabs.empty(); ++steps) {
    app_.back();
    answerDialogs();
  }
}

bool Tourist::pressIfThere(const std::string& label) {
  const auto all = player_.usable();
  const auto found = std::ranges::find(all, label, &Player::Usable::label);
  if (found == all.end()) return false;
  press(found->handle);
  return true;
}

void Tourist::visit(int depth) {
  answerDialogs();
  int here = app_.view().screen;
  std::set<std::string> done;
  for (bool found = true; found && presses_ < mostPresses;) {
    found = false;
    for (const Player::Usable& use : player_.usable()) {
      const std::string kind = use.likeness.empty() ? use.label : use.likeness;
      if (!isForTourists(use) || (depth > 0 && !use.onPage) || !done.insert(kind).second) continue;
      found = true;
      press(use.handle);
      answerDialogs();
      if (app_.view().screen > here && depth < deepest) visit(depth + 1);
      for (int steps = 0; steps < 3 && app_.view().screen > here; ++steps) {
        app_.back();
        answerDialogs();
      }
      if (app_.view().screen != here && depth > 0) return;  // the press left this screen
      here = app_.view().screen;
      break;
    }
  }
}

void Tourist::visitAllScreens() {
  presses_ = 0;
  goHome();
  visit(0);
  goHome();
}

void Tourist::playWeeks(int weeks) {
  for (int week = 0; week < weeks; ++week) {
    goHome();
    if (!pressIfThere("Home") || !pressIfThere("End Week")) return;
    answerDialogs();
    player_.answerStory();
    pressIfThere("Close");
    answerDialogs();
  }
}

}  // namespace tb::test
