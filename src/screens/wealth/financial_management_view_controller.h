#pragma once

#include <vector>

#include "screens/stage.h"
#include "wealth/payment_history.h"

namespace tb {

// The player's money at a glance: what there is, what comes in and where it comes from.
class FinancialManagementViewController : public Screen {
 public:
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section income(const Game& game) const;

  std::vector<YearOfPayments> years_;  // what titles paid, this year being the last
};

}  // namespace tb
