#pragma once

#include "screens/stage.h"

namespace tb {

// What the weekly energy is made of, where it goes, and what age will leave of it.
class EnergyTrackerViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

// The row that leads there.
[[nodiscard]] view::Row trackerRow(const WorldState& world);

}  // namespace tb
