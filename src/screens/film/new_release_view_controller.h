#pragma once

#include "screens/stage.h"

namespace tb {

// Last week's releases with a critic's card each.
class NewReleaseViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
