#pragma once

#include "screens/stage.h"

namespace tb {

// The five traits with the price of each next point.
class TalentTraitsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
