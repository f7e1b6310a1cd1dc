#include "screens/stage.h"

#include <algorithm>
#include <utility>

namespace tb {

void Stage::open(std::unique_ptr<Screen> screen) {
  Screen& opened = *screen;
  screens_.push_back({.screen = std::move(screen), .number = ++opened_});
  opened.load(*this);
}

void Stage::close() {
  if (screens_.size() < 2) return;
  screens_.back().screen->leave(*this);
  left_.push_back(std::move(screens_.back().screen));
  screens_.pop_back();
  screens_.back().appeared = false;
}

void Stage::leave() { leaveTo(std::max<std::size_t>(screens_.size(), 2) - 1, {}); }

void Stage::leaveToFirst(Operation then) { leaveTo(1, then); }

void Stage::leaveTo(std::size_t depth, const Operation& then) {
  while (screens_.size() > depth) {
    if (auto leaving = top().beforeLeaving()) {
      const auto goOn = [depth, then](Stage& stage) {
        stage.close();
        stage.leaveTo(depth, then);
      };
      return ask(std::move(leaving->question),
                 {{.label = leaving->stay, .weight = view::Button::Weight::primary},
                  {.label = leaving->leave, .press = goOn, .weight = view::Button::Weight::destructive}});
    }
    close();
  }
  if (then) then(*this);
}

void Stage::beginWith(std::unique_ptr<Screen> first) {
  for (Standing& standing : screens_) left_.push_back(std::move(standing.screen));
  screens_.clear();
  open(std::move(first));
}

void Stage::renewFirst() {
  screens_.front().number = ++opened_;
  screens_.front().listPages.clear();
}

void Stage::show(Notice notice) {
  ask(std::move(notice), {{.label = "OK", .weight = view::Button::Weight::primary}});
}

void Stage::show(Refusal refusal) {
  if (refusal) show(std::move(*refusal));
}

void Stage::ask(Notice question, std::vector<view::Button> answers) {
  for (view::Button& answer : answers) {
    answer.press = [press = std::move(answer.press)](Stage& stage) {
      stage.dismiss();
      if (press) press(stage);
    };
  }
  dialogs_.push_back({std::move(question.title), std::move(question.message), std::move(answers)});
}

void Stage::dismiss() {
  if (!dialogs_.empty()) dialogs_.erase(dialogs_.begin());
}

void Stage::say(std::string line) { passing_ = {{.text = std::move(line), .number = ++said_}}; }

void Stage::play(view::Moment moment) {
  moment.number = ++played_;
  moment_ = {std::move(moment)};
}

Screen::TabsHere Stage::tabsHere() const {
  Screen::TabsHere least = Screen::TabsHere::inReach;
  for (const Standing& standing : screens_) least = std::max(least, standing.screen->tabsHere());
  return least;
}

void Stage::settle() {
  // appear() can open another screen, which then has to appear too.
  while (!screens_.empty() && !screens_.back().appeared) {
    screens_.back().appeared = true;
    screens_.back().screen->appear(*this);
  }
  left_.clear();
}

std::size_t Stage::listPage(const std::string& key) const {
  const auto& pages = screens_.back().listPages;
  const auto found = pages.find(key);
  return found == pages.end() ? 0 : found->second;
}

void Stage::turnList(const std::string& key, std::size_t page) { screens_.back().listPages[key] = page; }

bool Stage::isFoldOpen(const std::string& key) const { return screens_.back().openFolds.contains(key); }

void Stage::turnFold(const std::string& key) {
  std::set<std::string>& open = screens_.back().openFolds;
  if (open.erase(key) == 0) open.insert(key);
}

}  // namespace tb
