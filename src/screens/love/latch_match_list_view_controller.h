#pragma once

#include "screens/stage.h"

namespace tb {

// Everybody who matched, newest first: open matches, the partner, and former partners with their last words.
class LatchMatchListViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
