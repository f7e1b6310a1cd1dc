#pragma once

// The game's interface to a shell: the page to show, and the player's input.

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "core/game.h"
#include "screens/layout.h"
#include "screens/stage.h"

namespace tb {

class App {
 public:
  // Loads the career from the store, or opens the new-career form. Without `documents` there are no slots and
  // backups.
  App(SaveStore& store, RandomSource& random, Locale locale = {}, Clock clock = stoppedClock,
      Documents* documents = nullptr);

  // The same with another first screen, for tests of a single screen or shell.
  App(SaveStore& store, RandomSource& random, Locale locale, std::unique_ptr<Screen> first,
      Clock clock = stoppedClock, Documents* documents = nullptr);

  // The current page. Valid until the next call of another function.
  [[nodiscard]] const view::Page& view();

  // The player used the item with this handle. Does nothing for an unknown handle or one of another kind. All
  // changes are durable when the function returns.
  void press(view::Handle handle);
  void type(view::Handle handle, const std::string& text);
  void slide(view::Handle handle, double value);

  // `seconds` (0 and up) have passed.
  void tick(double seconds);

  // Runs the rest of an action whose document has been read by now.
  void goOn(const std::function<void()>& rest);

  // Leaves the top screen if it can be left; on a tab of the hub, goes to the first tab.
  void back();

  // The platform could not save a commit. Shows a notice, once until saving works again.
  void savingFailed(const std::string& why);

  // Why the last commit failed; empty when everything is saved.
  [[nodiscard]] const std::string& unsavedBecause() const { return unsaved_because_; }

  // Shows a notice from the platform, such as that a damaged career was moved.
  void tell(Notice notice);

  // Shows a passing line from the platform.
  void say(std::string line);

  [[nodiscard]] const Game& game() const { return game_; }

 private:
  template <class Kind, class... Values>
  void use(view::Handle handle, Kind LaidOutPage::Use::* kind, const Values&... values);
  void addFrame(view::Page& page);
  void loadStore(Reload extent);
  void saveAndRefresh();
  void backUpAtNewYear();
  void endAction();

  Game game_;
  Stage stage_;
  std::optional<LaidOutPage> laid_out_;
  std::string unsaved_because_;
  Int backed_up_year_ = 0;  // or the year in which the career was loaded
};

}  // namespace tb
