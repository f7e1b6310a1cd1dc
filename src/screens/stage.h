#pragma once

// What the screens stand on: the game, the stack of screens, and the notices over them.

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "core/game.h"
#include "core/notice.h"
#include "screens/view.h"

namespace tb {

// A screen says what it shows and offers the player's operations. It holds no rule: an operation calls the
// rule and shows what the rule answers.
class Screen {
 public:
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  virtual void load(Stage&) {}          // once, as it is opened
  virtual void appear(Stage&) {}        // each time it comes to the top, at the end of the player's action
  virtual void leave(Stage&) {}         // as the player closes it
  virtual void tick(Stage&, double) {}  // seconds that passed while it was on top

  // The screen as it is now. Its operations may work on the screen itself, which outlives its page.
  [[nodiscard]] virtual view::Page view(const Game& game) = 0;

  // What the way back is called; empty for a screen that cannot be left by it.
  [[nodiscard]] virtual std::string closeLabel() const { return "Back"; }

  // The player goes back where there is nothing to leave. Does nothing unless the screen has a place that it
  // starts from.
  virtual void goBack(Stage&) {}

  // What is asked before the screen is left, by its own way back or by a tab, when something would be lost.
  struct Leaving {
    Notice question;
    std::string stay;  // the two answers
    std::string leave;
  };
  [[nodiscard]] virtual std::optional<Leaving> beforeLeaving() const { return {}; }

  // Whether the tabs of the first screen can be used here and on the screens over this one.
  enum class TabsHere : std::uint8_t {
    inReach,
    later,  // this has to be closed first; their place is kept
    none,
  };
  [[nodiscard]] virtual TabsHere tabsHere() const { return TabsHere::inReach; }

  // Of the first screen: adds to a page over it what stays in reach there.
  virtual void addFrame(const Game&, TabsHere, view::Page&) {}
};

class Stage {
 public:
  explicit Stage(Game& game) : game_(game) {}

  [[nodiscard]] Game& game() const { return game_; }

  // Opens a screen over the one on top. It loads at once and appears when the action ends.
  void open(std::unique_ptr<Screen> screen);

  // Leaves the screen on top for the one below, which appears again. The first screen stays.
  void close();

  // The player leaves the screen on top: the same, but what would be lost is asked about first.
  void leave();
  // Leaves all screens but the first in that way, and then goes on there.
  void leaveToFirst(Operation then);

  // The first screen is a new place from now on: its lists are at their first page, and a shell shows it from
  // its top.
  void renewFirst();

  // Shows a notice with the one answer "OK". An empty refusal shows nothing.
  void show(Notice notice);
  void show(Refusal refusal);

  // Asks before something is done; `answers` run their operation after the question is gone. An answer
  // without an operation just ends the question.
  void ask(Notice question, std::vector<view::Button> answers);

  // Takes the notice on top away; does nothing when there is none.
  void dismiss();

  // Plays a moment over the page that this action leads to; the next action ends it. A second one in the same
  // action takes the place of the first.
  void play(view::Moment moment);

  // Says in a passing line what was done. The last one of an action is shown.
  void say(std::string line);

  // Begins an action of the player: what was played and said of the one before has been shown.
  void begin() {
    moment_.clear();
    passing_.clear();
  }

  // Lets screens that came to the top appear. Ends every action.
  void settle();

  [[nodiscard]] Screen& top() const { return *screens_.back().screen; }
  [[nodiscard]] Screen& first() const { return *screens_.front().screen; }
  // As far as all screens over the first allow.
  [[nodiscard]] Screen::TabsHere tabsHere() const;
  // The screens are numbered from 1 in the order in which they are opened, and keep their number.
  [[nodiscard]] int topNumber() const { return screens_.back().number; }
  [[nodiscard]] std::size_t depth() const { return screens_.size(); }
  [[nodiscard]] const std::vector<view::Dialog>& dialogs() const { return dialogs_; }
  [[nodiscard]] const std::vector<view::PassingLine>& passing() const { return passing_; }

  [[nodiscard]] const std::vector<view::Moment>& moment() const { return moment_; }  // none or one

  // How far the player has paged through a list of the screen on top, in pages from 0.
  [[nodiscard]] std::size_t listPage(const std::string& key) const;
  void turnList(const std::string& key, std::size_t page);

  // Which folds of the screen on top are open.
  [[nodiscard]] bool isFoldOpen(const std::string& key) const;
  void turnFold(const std::string& key);

 private:
  void leaveTo(std::size_t depth, const Operation& then);

  struct Standing {
    std::unique_ptr<Screen> screen;
    int number = 0;
    bool appeared = false;
    std::map<std::string, std::size_t> list_pages = {};
    std::set<std::string> open_folds = {};
  };

  Game& game_;
  std::vector<Standing> screens_;
  int opened_ = 0;
  std::vector<std::unique_ptr<Screen>> left_;  // closed during this action; their operation may still run
  std::vector<view::Dialog> dialogs_;
  std::vector<view::Moment> moment_;
  int played_ = 0;
  std::vector<view::PassingLine> passing_;
  int said_ = 0;
};

}  // namespace tb
