#pragma once

// A player who submits for roles and ends weeks.

#include <cstddef>
#include <set>
#include <string>

#include "tests/player.h"

namespace tb::test {

class SubmittingPlayer {
 public:
  explicit SubmittingPlayer(App& app) : app_(app), player_(app) {}

  // Submits for up to that many roles with the listings' buttons.
  void submit(std::size_t roles) {
    press("The Backstage");
    press("Casting Network");
    const std::size_t before = asked();
    std::set<std::string> tried;
    while (asked() < before + roles && pressListing(tried)) press("OK");
    press("Back");
    press("Back");
  }

  void endWeek() {
    press("End Week");
    press("Not Today");  // to recommend the game, once in a career
    player_.answerStory();
    press("Carry on");
  }

 private:
  [[nodiscard]] std::size_t asked() const { return app_.game().world.saveAllAuditionList.size(); }

  // Presses the first listing button that was not tried yet; false when there is none.
  bool pressListing(std::set<std::string>& tried) {
    for (const auto& usable : player_.usable()) {
      if (usable.label != "Submit" || !tried.insert(usable.name).second) continue;
      app_.press(usable.handle);
      return true;
    }
    return false;
  }

  // Does nothing when there is no such label.
  void press(const std::string& label) {
    for (const auto& usable : player_.usable()) {
      if (usable.label == label) return app_.press(usable.handle);
    }
  }

  App& app_;
  Player player_;
};

}  // namespace tb::test
