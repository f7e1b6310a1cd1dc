#pragma once

#include "screens/stage.h"

namespace tb {

// Patron: subscriptions to the player's film reviews.
class PatronHomeViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
