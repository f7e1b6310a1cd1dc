#pragma once

#include "screens/stage.h"

namespace tb {

// The five traits and what the next point of each costs.
class TalentTraitsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
