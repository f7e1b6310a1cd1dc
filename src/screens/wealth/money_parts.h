#pragma once

// How the financial screens show what they share.

#include <functional>
#include <string>
#include <vector>

#include "core/game.h"
#include "screens/view.h"
#include "wealth/net_worth.h"
#include "wealth/payment_history.h"

namespace tb {

// What a kind of payment is called.
struct PaymentWords {
  const char* one;
  const char* several;
};
[[nodiscard]] const PaymentWords& wordsFor(PaymentKind kind);

// A figure of money as a tile; below zero it warns.
[[nodiscard]] view::StatTile moneyTile(const Game& game, std::string label, double amount,
                                       std::string detail = "");

// A named part of a whole, in dollars.
struct MoneyPart {
  std::string label;
  double amount;
};

// The parts of a net worth, by the names that the screens give them.
[[nodiscard]] std::vector<MoneyPart> partsOf(const NetWorth& worth);

// A pie of the parts above zero; of nothing it says `whenEmpty`.
[[nodiscard]] view::Chart moneyPie(const Game& game, std::string title, const std::vector<MoneyPart>& parts,
                                   std::string whenEmpty);

// A bar for each of the last ten years, oldest first, of what `amountOf` finds in it. There is at least one.
[[nodiscard]] view::Chart yearBars(const Game& game, std::string title,
                                   const std::vector<YearOfPayments>& years,
                                   const std::function<double(const YearOfPayments&)>& amountOf);

}  // namespace tb
