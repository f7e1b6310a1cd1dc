#pragma once

#include "screens/stage.h"

namespace tb {

// The fame level: where each point comes from, and what would raise it next.
class FameDetailViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
