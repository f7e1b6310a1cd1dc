#include "screens/wealth/money_parts.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

constexpr std::size_t yearsOnChart = 10;

// In the order of paymentKinds.
constexpr std::array<PaymentWords, paymentKinds.size()> paymentWords = {{
    {.one = "Session", .several = "Sessions"},
    {.one = "Buyout", .several = "Buyouts"},
    {.one = "Residual", .several = "Residuals"},
    {.one = "Royalty", .several = "Royalties"},
    {.one = "Investment", .several = "Investments"},
}};

Chart::Point pointOf(const Game& game, const MoneyPart& part) {
  return {.label = part.label, .value = part.amount, .text = bigMoney(game.locale, part.amount)};
}

const MoneyPart& largestOf(const std::vector<MoneyPart>& parts) {
  return *std::ranges::max_element(parts, {}, &MoneyPart::amount);
}

}  // namespace

const PaymentWords& wordsFor(PaymentKind kind) { return paymentWords[static_cast<std::size_t>(kind)]; }

StatTile moneyTile(const Game& game, std::string label, double amount, std::string detail) {
  return {.label = std::move(label),
          .value = cash(game.locale, amount),
          .detail = std::move(detail),
          .tone = amount < 0 ? Tone::warning : Tone::plain};
}

std::vector<MoneyPart> partsOf(const NetWorth& worth) {
  return {{"Cash", worth.cash},         {"Cards", worth.cards},       {"Property", worth.property},
          {"Vehicles", worth.vehicles}, {"Ventures", worth.ventures}, {"Streaming company", worth.platform}};
}

Chart moneyPie(const Game& game, std::string title, const std::vector<MoneyPart>& parts,
               std::string whenEmpty) {
  Chart chart{.kind = Chart::Kind::pie, .title = std::move(title), .summary = std::move(whenEmpty)};
  double whole = 0;
  for (const MoneyPart& part : parts) {
    if (part.amount <= 0) continue;
    chart.points.push_back(pointOf(game, part));
    whole += part.amount;
  }
  if (chart.points.empty()) return chart;
  const MoneyPart& largest = largestOf(parts);
  chart.summary = tb::format("{} in total. Largest part: {}, {:.0f}%.", bigMoney(game.locale, whole),
                             largest.label, largest.amount / whole * 100);
  return chart;
}

Chart yearBars(const Game& game, std::string title, const std::vector<YearOfPayments>& years,
               const std::function<double(const YearOfPayments&)>& amountOf) {
  std::vector<MoneyPart> bars;
  for (std::size_t index = years.size() - std::min(years.size(), yearsOnChart); index < years.size();
       ++index) {
    bars.push_back({std::to_string(years[index].year), amountOf(years[index])});
  }
  Chart chart{.kind = Chart::Kind::bar, .title = std::move(title)};
  for (const MoneyPart& bar : bars) chart.points.push_back(pointOf(game, bar));
  const auto [least, most] = std::ranges::minmax_element(bars, {}, &MoneyPart::amount);
  chart.scale = roundScale(std::min(least->amount, 0.0), std::max(most->amount, 0.0),
                           [&game](double mark) { return bigMoney(game.locale, mark); });
  chart.summary = tb::format("Most in {}: {}.", most->label, bigMoney(game.locale, most->amount));
  return chart;
}

}  // namespace tb
