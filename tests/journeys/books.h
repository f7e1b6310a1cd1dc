#pragma once

// Expected cash from the records, week by week.

#include "core/world_state.h"

namespace tb::test {

struct Books {
  double records = 0;  // payments for titles, without residuals
  double residuals = 0;
  double jobs = 0;
  double bills = 0;

  [[nodiscard]] double balance() const { return records + residuals + jobs - bills; }

  // Adds the current week. Call it while the summary is open.
  void addTheWeek(const WorldState& world) {
    const std::int64_t week = world.weekNumberForTracking;
    for (const WeeklyEarnings& line : world.saveAllWeeklyEarnings) {
      if (line.weekNumberForTracking != week) continue;
      records += line.sessionEarned + line.buyoutEarned;
      residuals += line.residualsEarned;
    }
    for (const RoyaltyPayout& line : world.saveAllRoyaltyPayouts) {
      if (line.weekNumberForTracking == week) records += line.payout;
    }
    for (const EquityPayout& line : world.saveAllEquityPayouts) {
      if (line.weekNumberForTracking == week) records += line.payOut;
    }
    jobs += world.weeklyJobIncome;
    for (const WeeklyLineItem& item : world.saveAllWeeklyLineItems) bills += item.amount;
  }
};

}  // namespace tb::test
