#pragma once

#include "screens/stage.h"

namespace tb {

// What Patron has paid, week by week.
class PatronAnalyticsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
