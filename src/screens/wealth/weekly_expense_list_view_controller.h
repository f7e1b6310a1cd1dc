#pragma once

#include "screens/stage.h"

namespace tb {

// The recurring weekly items and their totals.
class WeeklyExpenseListViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
