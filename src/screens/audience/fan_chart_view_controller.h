#pragma once

#include "screens/stage.h"

namespace tb {

// The history of the fans.
class FanChartViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
