#pragma once

#include "screens/stage.h"

namespace tb {

// The Backstage, behind the "B" at the hub's top right: what the industry knows of the performer.
class BackstageViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
