#pragma once

#include "screens/stage.h"

namespace tb {

// What came out on Metflix: the player's latest titles, and titles of the catalogue that change every week.
class MetflixNewsViewController : public Screen {
 public:
  [[nodiscard]] view::Page view(const Game& game) override;
};

}  // namespace tb
