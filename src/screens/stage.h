#pragma once

// The stack of screens with the notices over it.

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

// A screen describes its page and its operations. It has no game rules: an operation calls a rule and shows
// the result.
class Screen {
 public:
  Screen() = default;
  Screen(const Screen&) = delete;
  Screen& operator=(const Screen&) = delete;
  virtual ~Screen() = default;

  virtual void load(Stage&) {}          // once, when it is opened
  virtual void appear(Stage&) {}        // each time it comes to the top, at the end of the player's action
  virtual void leave(Stage&) {}         // when the player closes it
  virtual void tick(Stage&, double) {}  // seconds passed while it was on top

  // The current page. Its operations may capture the screen, which outlives the page.
  [[nodiscard]] virtual view::Page view(const Game& game) = 0;

  // The label of the back button; empty for a screen without one.
  [[nodiscard]] virtual std::string closeLabel() const { return "Back"; }

  // The player goes back on a screen that cannot be closed: the hub returns to its first tab.
  virtual void goBack(Stage&) {}

  // The question before the screen is left, when something would be lost.
  struct Leaving {
    Notice question;
    std::string stay;  // label to stay on the screen
    std::string leave;
  };
  [[nodiscard]] virtual std::optional<Leaving> beforeLeaving() const { return {}; }

  // Whether the first screen's tabs are usable on this screen and on those above it.
  enum class TabsHere : std::uint8_t {
    inReach,
    later,  // shown but off: this screen has to be closed first
    none,
  };
  [[nodiscard]] virtual TabsHere tabsHere() const { return TabsHere::inReach; }

  // For the first screen: adds its tabs and figures to the page of a screen above it.
  virtual void addFrame(const Game&, TabsHere, view::Page&) {}
};

class Stage {
 public:
  explicit Stage(Game& game) : game_(game) {}

  [[nodiscard]] Game& game() const { return game_; }

  // Opens a screen on top. It loads at once and appears when the action ends.
  void open(std::unique_ptr<Screen> screen);
  template <class Opened, class... Arguments>
  void open(Arguments&&... arguments) {
    open(std::make_unique<Opened>(std::forward<Arguments>(arguments)...));
  }

  // Closes the top screen; the one below appears again. Does nothing on the first screen.
  void close();

  // Closes the top screen, after asking if something would be lost.
  void leave();
  // Leaves all screens but the first in the same way, then runs `then`.
  void leaveToFirst(Operation then);

  // Closes all screens and opens a new first one, for another career. Notices stay.
  void beginWith(std::unique_ptr<Screen> first);

  // Gives the first screen a new number: its lists go to their first page, and a shell scrolls to its top.
  void renewFirst();

  // Shows a notice with the answer "OK". An empty refusal shows nothing.
  void show(Notice notice);
  void show(Refusal refusal);

  // Asks a question. The operation of an answer runs after the question is closed; an answer without an
  // operation only closes it.
  void ask(Notice question, std::vector<view::Button> answers);

  // Closes the top notice; does nothing when there is none.
  void dismiss();

  // Plays a moment over the next page, until the next action. A second one in the same action replaces the
  // first.
  void play(view::Moment moment);

  // Shows a passing line about what was done. Only the last one of an action is shown.
  void say(std::string line);

  // Starts an action: clears the moment and the passing line of the previous one.
  void begin() {
    moment_.clear();
    passing_.clear();
  }

  // Calls appear() for screens that came to the top. Ends every action.
  void settle();

  [[nodiscard]] Screen& top() const { return *screens_.back().screen; }
  [[nodiscard]] Screen& first() const { return *screens_.front().screen; }
  // The most restrictive value of all screens above the first.
  [[nodiscard]] Screen::TabsHere tabsHere() const;
  // Screens are numbered from 1 in the order they are opened.
  [[nodiscard]] int topNumber() const { return screens_.back().number; }
  [[nodiscard]] std::size_t depth() const { return screens_.size(); }
  [[nodiscard]] const std::vector<view::Dialog>& dialogs() const { return dialogs_; }
  [[nodiscard]] const std::vector<view::PassingLine>& passing() const { return passing_; }

  [[nodiscard]] const std::vector<view::Moment>& moment() const { return moment_; }  // none or one

  // The current page of a list on the top screen, from 0.
  [[nodiscard]] std::size_t listPage(const std::string& key) const;
  void turnList(const std::string& key, std::size_t page);

  // Whether a fold on the top screen is open.
  [[nodiscard]] bool isFoldOpen(const std::string& key) const;
  void turnFold(const std::string& key);

 private:
  void leaveTo(std::size_t depth, const Operation& then);

  struct Standing {
    std::unique_ptr<Screen> screen;
    int number = 0;
    bool appeared = false;
    std::map<std::string, std::size_t> listPages = {};
    std::set<std::string> openFolds = {};
  };

  Game& game_;
  std::vector<Standing> screens_;
  int opened_ = 0;
  std::vector<std::unique_ptr<Screen>>
      left_;  // closed during this action; their operation can still be running
  std::vector<view::Dialog> dialogs_;
  std::vector<view::Moment> moment_;
  int played_ = 0;
  std::vector<view::PassingLine> passing_;
  int said_ = 0;
};

}  // namespace tb
