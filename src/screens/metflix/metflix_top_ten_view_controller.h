#pragma once

#include "screens/stage.h"

namespace tb {

// The Metflix Top Ten of films or of series; the player's titles are highlighted.
class MetflixTopTenViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Choice choice();

  bool shows_series_ = false;
};

}  // namespace tb
