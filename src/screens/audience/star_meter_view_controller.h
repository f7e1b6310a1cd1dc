#pragma once

#include "screens/stage.h"

namespace tb {

// The performer's rank among all actors, its history, and the leading stars.
class StarMeterViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
