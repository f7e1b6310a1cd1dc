#include "screens/wealth/payment_transactions_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"
#include "screens/wealth/money_parts.h"

namespace tb {

using namespace view;

namespace {

Row paymentRow(const Game& game, const Payment& payment) {
  std::string detail = tb::format("Week {} • {}", payment.week, wordsFor(payment.kind).one);
  if (!payment.source.empty()) detail += tb::format(" from {}", payment.source);
  return {.label = payment.title,
          .value = cash(game.locale, payment.amount),
          .detail = std::move(detail),
          .tone = payment.amount < 0 ? Tone::warning : Tone::good};
}

}  // namespace

void PaymentTransactionsViewController::load(Stage& stage) {
  const WorldState& world = stage.game().world;
  history_ = paymentHistory(world);
  years_ = paymentsByYear(world);
  year_ = years_.size() - 1;
}

double PaymentTransactionsViewController::paidIn(const YearOfPayments& year) const {
  return kind_ ? year.of(*kind_) : year.total();
}

Choice PaymentTransactionsViewController::kindChoice() {
  Choice choice{.label = "Payments",
                .options = {{.label = "All", .chosen = !kind_, .press = [this](Stage&) { kind_.reset(); }}}};
  for (const PaymentKind kind : paymentKinds) {
    choice.options.push_back({.label = wordsFor(kind).several,
                              .chosen = kind_ == kind,
                              .press = [this, kind](Stage&) { kind_ = kind; }});
  }
  return choice;
}

Section PaymentTransactionsViewController::yearSection(const Game& game) {
  const YearOfPayments& year = years_[year_];
  std::vector<std::size_t> rows;
  for (std::size_t index = 0; index < history_.size(); ++index) {
    const Payment& payment = history_[index];
    if (payment.year == year.year && (!kind_ || payment.kind == *kind_)) rows.push_back(index);
  }
  Button earlier{.label = "Earlier", .press = [this](Stage&) { year_ -= 1; }};
  if (year_ == 0) earlier.offReason = "This is the first year.";
  Button later{.label = "Later", .press = [this](Stage&) { year_ += 1; }};
  if (year_ + 1 == years_.size()) later.offReason = "This is the latest year.";
  return {.heading = std::to_string(year.year),
          .nodes = {
              Buttons{{std::move(earlier), std::move(later)}},
              PagedList{.key = tb::format("{} {}", year.year, kind_ ? wordsFor(*kind_).several : "all"),
                        .size = rows.size(),
                        .nodeAt = [this, &game, rows](
                                      std::size_t index) { return paymentRow(game, history_[rows[index]]); },
                        .whenEmpty = "No payments of this kind this year."}}};
}

Page PaymentTransactionsViewController::view(const Game& game) {
  double total = 0;
  for (const YearOfPayments& year : years_) total += paidIn(year);
  return {.title = "Payments",
          .subtitle = "What your titles have paid you",
          .nodes = {Tiles{{moneyTile(game, tb::format("In {}", years_[year_].year), paidIn(years_[year_])),
                           moneyTile(game, "In all", total)}},
                    kindChoice(),
                    yearBars(game, "Year by year", years_,
                             [this](const YearOfPayments& year) { return paidIn(year); }),
                    yearSection(game)}};
}

}  // namespace tb
