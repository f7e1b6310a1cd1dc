#pragma once

#include "screens/stage.h"

namespace tb {

// Latch, the dating app: whom it shows, the cards, and the matches behind the rose.
class LatchDatingViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
