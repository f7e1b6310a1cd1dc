#pragma once

#include <vector>

#include "screens/stage.h"
#include "wealth/payment_history.h"

namespace tb {

// Overview of the player's cash, income and expenses.
class FinancialManagementViewController : public Screen {
 public:
  void appear(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] view::Section income(const Game& game) const;

  std::vector<YearOfPayments> years_;  // payments for titles; the last entry is the current year
};

}  // namespace tb
