#pragma once

#include <utility>

#include "career/casting_board.h"
#include "screens/stage.h"

namespace tb {

// The details of a casting listing.
class BackstageDetailViewController : public Screen {
 public:
  explicit BackstageDetailViewController(CastingListing listing) : listing_(std::move(listing)) {}
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  CastingListing listing_;
};

}  // namespace tb
