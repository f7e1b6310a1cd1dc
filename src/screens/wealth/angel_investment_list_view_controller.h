#pragma once

#include "screens/stage.h"

namespace tb {

// The films and series that the player invested in.
class AngelInvestmentListViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
