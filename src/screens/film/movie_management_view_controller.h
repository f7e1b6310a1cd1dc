#pragma once

#include "screens/stage.h"

namespace tb {

// The player's own productions and investments, with the progress of each. Read-only.
class MovieManagementViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
