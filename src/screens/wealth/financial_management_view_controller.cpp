#include "screens/wealth/financial_management_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "screens/parts.h"
#include "screens/wealth/money_parts.h"
#include "screens/work/job_board_view_controller.h"
#include "wealth/net_worth.h"

namespace tb {

using namespace view;

namespace {

std::string changeOfYear(const WorldState& world) {
  if (world.saveLastYTDPaycheck == 0) return "";
  const double change =
      (world.yearToDatePaycheck - world.saveLastYTDPaycheck) / world.saveLastYTDPaycheck * 100;
  return tb::format("{:.1f}% against last year", change);
}

Section paycheck(const Game& game) {
  const WorldState& world = game.world;
  Section section{.heading = "PAYCHECK"};
  if (world.yearToDatePaycheck == 0) {
    section.nodes = {Text{.text = "You have not earned any income this year."}};
  } else {
    section.nodes = {
        Tiles{{moneyTile(game, "Pay this year", world.yearToDatePaycheck, changeOfYear(world))}}};
  }
  if (world.saveLastYTDPaycheck != 0) {
    section.nodes.push_back(
        Row{.label = "Pay last year", .value = cash(game.locale, world.saveLastYTDPaycheck)});
  }
  return section;
}

Section job(const Game& game) {
  const WorldState& world = game.world;
  if (world.weeklyJobTitle.empty()) {
    return {
        .heading = "JOB",
        .nodes = {Text{.text = "You do not have a job right now. Find a temp job to start paying your bills"},
                  leadingTo<JobBoardViewController>("Job Board", "Weekly pay for weekly energy")}};
  }
  return {.heading = "JOB",
          .nodes = {Text{.text = world.weeklyJobTitle, .style = Text::Style::large},
                    Row{.label = "Pay per week", .value = wholeMoney(game.locale, world.weeklyJobIncome)},
                    Row{.label = "Weeks left", .value = std::to_string(world.weeklyJobContractRemaining)},
                    Row{.label = "Energy per week", .value = std::to_string(world.weeklyEnergyCost)}}};
}

Chart netIncome(const Game& game) {
  const std::vector<double> weeks(game.world.saveWeeklyEarnings.begin(), game.world.saveWeeklyEarnings.end());
  return historyChart("Net income by week", "week", weeks,
                      [&game](double amount) { return bigMoney(game.locale, amount); });
}

}  // namespace

void FinancialManagementViewController::appear(Stage& stage) {
  updateNetWorth(stage.game());
  years_ = paymentsByYear(stage.game().world);
}

// Income by kind in the current year, and by year.
Section FinancialManagementViewController::income(const Game& game) const {
  std::vector<MoneyPart> kinds = {{"Jobs", game.world.yearToDatePaycheck}};
  for (const PaymentKind kind : paymentKinds)
    kinds.push_back({wordsFor(kind).several, years_.back().of(kind)});
  return {.heading = "INCOME",
          .nodes = {netIncome(game),
                    moneyPie(game, tb::format("What your work paid in {}", game.world.yearNumber), kinds,
                             "Your work has not paid anything this year."),
                    yearBars(game, "Paid by your titles, year by year", years_, &YearOfPayments::total)}};
}

Page FinancialManagementViewController::view(const Game& game) {
  const WorldState& world = game.world;
  return {.title = "Finances",
          .nodes = {Tiles{{moneyTile(game, "Cash", world.totalCashAvailable),
                           moneyTile(game, "Net worth", world.saveNetworth)}},
                    job(game), paycheck(game), income(game)}};
}

}  // namespace tb
