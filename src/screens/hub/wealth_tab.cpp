
#include "core/format.h"
#include "core/number_style.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"
#include "screens/wealth/angel_investment_list_view_controller.h"
#include "screens/wealth/balance_sheet_view_controller.h"
#include "screens/wealth/financial_management_view_controller.h"
#include "screens/wealth/money_parts.h"
#include "screens/wealth/payment_transactions_view_controller.h"
#include "screens/wealth/weekly_expense_list_view_controller.h"
#include "wealth/line_items.h"
#include "wealth/net_worth.h"

namespace tb {

namespace {

using namespace view;

Section books(const Game& game) {
  return {
      .heading = "MONEY",
      .nodes = {
          leadingTo<FinancialManagementViewController>("Finances", "Job, pay and income"),
          leadingTo<BalanceSheetViewController>("Balance Sheet", "What you own, at today's prices"),
          leadingTo<WeeklyExpenseListViewController>("Weekly Expenses", "Your regular expenses",
                                                     cash(game.locale, standingExpenses(game.world))),
          leadingTo<PaymentTransactionsViewController>("Payments", "What your titles have paid you"),
          leadingTo<AngelInvestmentListViewController>("Investments", "Your money in other people's films")}};
}

Chart indexChart(const char* title, const RealList& history) {
  const std::vector<double> values(history.begin(), history.end());
  return historyChart(title, "week", values, [](double index) { return tb::format("{:.3f}", index); });
}

}  // namespace

std::vector<Node> wealthTab(const Game& game) {
  const WorldState& world = game.world;
  std::vector<Node> nodes = nextForMoney(game);
  nodes.append_range(std::vector<Node>{
      Tiles{{moneyTile(game, "Cash", world.totalCashAvailable),
             moneyTile(game, "Net worth", netWorth(world).total())}},
      books(game),
      Section{.heading = "MARKETS",
              .nodes = {indexChart("Real estate index", world.trackRealEstateIndex),
                        indexChart("Card index", world.trackCardIndex)}},
  });
  return nodes;
}

}  // namespace tb
