#pragma once

#include "screens/stage.h"

namespace tb {

// The films behind which the player stands with more than a part: own productions and investments. Nothing is
// done here; it tells how each of them is coming along.
class MovieManagementViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
