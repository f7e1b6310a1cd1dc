#pragma once

#include "career/casting_board.h"
#include "screens/stage.h"

namespace tb {

// The casting network: a board of roles, drawn once when the screen opens.
class CastingNetworkViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Row listingRow(const Game& game, const CastingListing& listing) const;

  CastingBoard board_;
};

}  // namespace tb
