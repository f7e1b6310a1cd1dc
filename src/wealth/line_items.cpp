#include "wealth/line_items.h"

namespace tb {

namespace {

double sumOfItems(const WorldState& world, bool expenses) {
  double sum = 0;
  for (const WeeklyLineItem& item : world.saveAllWeeklyLineItems) {
    if (item.isExpense == expenses) sum += item.amount;
  }
  return sum;
}

}  // namespace

double standingExpenses(const WorldState& world) { return sumOfItems(world, true); }

double standingIncome(const WorldState& world) { return sumOfItems(world, false); }

}  // namespace tb
