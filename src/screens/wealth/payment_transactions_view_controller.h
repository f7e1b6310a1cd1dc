#pragma once

#include <optional>
#include <vector>

#include "screens/stage.h"
#include "wealth/payment_history.h"

namespace tb {

// Payments for titles by kind and year, newest first. Read-only.
class PaymentTransactionsViewController : public Screen {
 public:
  void load(Stage& stage) override;
  [[nodiscard]] view::Page view(const Game& game) override;

 private:
  [[nodiscard]] double paidIn(const YearOfPayments& year) const;
  [[nodiscard]] view::Choice kindChoice();
  [[nodiscard]] view::Section yearSection(const Game& game);

  std::vector<Payment> history_;
  std::vector<YearOfPayments> years_;
  std::size_t year_ = 0;             // index of the selected year in years_
  std::optional<PaymentKind> kind_;  // empty for all kinds
};

}  // namespace tb
