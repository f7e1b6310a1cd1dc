#pragma once

#include "screens/stage.h"

namespace tb {

// The standing items of a week, with what they come to.
class WeeklyExpenseListViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
