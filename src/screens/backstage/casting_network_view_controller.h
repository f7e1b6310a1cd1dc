#pragma once

#include "career/casting_board.h"
#include "screens/stage.h"

namespace tb {

// The casting network: a board of roles, which stays as it is for as long as the screen is open.
class CastingNetworkViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Row listingRow(const Game& game, const CastingListing& listing) const;

  CastingBoard board_;
};

}  // namespace tb
