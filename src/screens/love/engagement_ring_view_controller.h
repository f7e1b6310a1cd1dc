#pragma once

#include "screens/stage.h"

namespace tb {

// The rings to propose with, at the prices of the day when the screen opens.
class EngagementRingViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  double index_ = 1;  // the market's
};

}  // namespace tb
