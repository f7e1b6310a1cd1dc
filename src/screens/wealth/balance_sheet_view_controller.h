#pragma once

#include "screens/stage.h"

namespace tb {

// The player's net worth by parts.
class BalanceSheetViewController : public Screen {
 public:
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
