#pragma once

// Shared parts of the financial screens.

#include <functional>
#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"
#include "wealth/net_worth.h"
#include "wealth/payment_history.h"

namespace tb {

// The names of a kind of payment.
struct PaymentWords {
  const char* one;
  const char* several;
};
[[nodiscard]] const PaymentWords& wordsFor(PaymentKind kind);

// A tile with an amount of money, in the warning tone if negative.
[[nodiscard]] view::StatTile moneyTile(const Game& game, std::string label, double amount,
                                       std::string detail = "");

// A named part of a whole, in dollars.
struct MoneyPart {
  std::string label;
  double amount;
};

// The parts of a net worth with their display names.
[[nodiscard]] std::vector<MoneyPart> partsOf(const NetWorth& worth);

// A pie chart of the positive parts; shows `whenEmpty` when there is none.
[[nodiscard]] view::Chart moneyPie(const Game& game, std::string title, const std::vector<MoneyPart>& parts,
                                   std::string whenEmpty);

// A bar chart of `amountOf` each of the last ten years, oldest first. `years` must not be empty.
[[nodiscard]] view::Chart yearBars(const Game& game, std::string title,
                                   const std::vector<YearOfPayments>& years,
                                   const std::function<double(const YearOfPayments&)>& amountOf);

}  // namespace tb
