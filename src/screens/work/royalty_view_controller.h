#pragma once

#include <cstdint>

#include "screens/stage.h"

namespace tb {

// A stake instead of pay: the project of the e-mail `passEmailId`, and what is asked for the role in it.
class RoyaltyViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section theAsk(const Game& game, const Audition& offer);
  void negotiate(Stage& stage);

  std::int64_t email_ = 0;
  std::int64_t steps_ = 0;  // above the percent on offer
};

}  // namespace tb
