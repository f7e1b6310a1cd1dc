#pragma once

#include "screens/stage.h"

namespace tb {

// What raises the weekly energy: subscriptions by category, and options that are claimed once.
class LifestyleWeeklyEnergyOptionsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
