#pragma once

// The whole game as a shell sees it: a page to show, and what the player did.

#include <memory>
#include <optional>
#include <string>

#include "core/game.h"
#include "screens/layout.h"
#include "screens/stage.h"

namespace tb {

class App {
 public:
  // Loads the career that the store holds, or opens the form of a new one.
  App(SaveStore& store, RandomSource& random, Locale locale = {}, Clock clock = stoppedClock);

  // The same with another screen at the bottom of the stack, for trying a screen or a shell alone.
  App(SaveStore& store, RandomSource& random, Locale locale, std::unique_ptr<Screen> first,
      Clock clock = stoppedClock);

  // What is on show now. Good until the next call of anything else.
  [[nodiscard]] const view::Page& view();

  // The player used what stands under the handle. An unknown handle, or one of another kind, does nothing.
  // All that the action wrote is made durable before this returns.
  void press(view::Handle handle);
  void type(view::Handle handle, const std::string& text);
  void slide(view::Handle handle, double value);

  // `seconds` of the player's time went by (0 and up).
  void tick(double seconds);

  // Leaves the screen on top, where it can be left; on a tab of the hub, goes to the first one.
  void back();

  // The platform could not keep what was committed: tells the player, once until saving works again.
  void savingFailed(const std::string& why);

  // Shows what the platform has to say, such as that a damaged career was put aside.
  void tell(Notice notice);

  [[nodiscard]] const Game& game() const { return game_; }

 private:
  template <class Kind, class... Values>
  void use(view::Handle handle, Kind LaidOutPage::Use::* kind, const Values&... values);
  void addFrame(view::Page& page);
  void saveAndRefresh();
  void endAction();

  Game game_;
  Stage stage_;
  std::optional<LaidOutPage> laid_out_;
  bool told_of_failure_ = false;
};

}  // namespace tb
