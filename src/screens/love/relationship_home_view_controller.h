#pragma once

#include "screens/stage.h"

namespace tb {

// The relationship: its meter, what the two can do, the family and the history.
class RelationshipHomeViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
