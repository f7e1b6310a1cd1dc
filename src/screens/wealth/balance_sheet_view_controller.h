#pragma once

#include "screens/stage.h"

namespace tb {

// What the player owns and what it is worth today, part by part.
class BalanceSheetViewController : public Screen {
 public:
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
