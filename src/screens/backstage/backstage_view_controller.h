#pragma once

#include "screens/stage.h"

namespace tb {

// The Backstage, opened by the "B" at the hub's top right: the performer's profile in the industry.
class BackstageViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
