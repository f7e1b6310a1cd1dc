#pragma once

// A player who opens every screen and uses what is on it.

#include <chrono>

#include "tests/player.h"

namespace tb::test {

class Tourist {
 public:
  explicit Tourist(App& app) : app_(app), player_(app) {}

  // Opens the screens that three presses reach from the hub, and presses one of each kind of item on them.
  // Restarts nothing and changes no slot.
  void visitAllScreens();

  // Ends weeks, with a look at each review.
  void playWeeks(int weeks);

  // Of a press and the page after it.
  [[nodiscard]] std::chrono::milliseconds longestAction() const { return longest_; }

 private:
  void visit(int depth);
  void press(view::Handle handle);
  void answerDialogs();
  void goHome();
  bool pressIfThere(const std::string& label);

  App& app_;
  Player player_;
  int presses_ = 0;
  std::chrono::milliseconds longest_{0};
};

}  // namespace tb::test
