#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// The stake offer of the e-mail `passEmailId`, with its negotiation.
class RoyaltyViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section askSection(const Game& game, const Audition& offer);
  void negotiate(Stage& stage);

  std::int64_t email_ = 0;
  std::int64_t steps_ = 0;  // above the offered percentage
};

}  // namespace tb
