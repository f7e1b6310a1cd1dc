#pragma once

#include <optional>
#include <string>
#include <vector>

#include "screens/stage.h"
#include "wealth/angel_investing.h"

namespace tb {

// The investment that the e-mail `passEmailId` offers, with its bargain.
class AngelInvestingViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section bargain(const Game& game, const Audition& film);
  void say(Game& game);
  void offer(Stage& stage);

  std::optional<InvestmentTalks> talks_;
  std::vector<std::string> pitch_;  // the team's, one bubble each
  std::vector<std::string> talk_;   // the ask and the answer of each declined offer
};

}  // namespace tb
