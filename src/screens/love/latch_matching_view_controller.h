#pragma once

#include "screens/stage.h"

namespace tb {

// The cards of Latch, one at a time.
class LatchMatchingViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
