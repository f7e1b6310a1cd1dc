#pragma once

#include "screens/stage.h"

namespace tb {

// The morning after: what came out last week, and what a critic thinks of it.
class NewReleaseViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
