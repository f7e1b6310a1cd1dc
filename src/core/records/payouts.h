#pragma once

// Payments for titles. Each is dated in the week whose summary counts it: a payout made while a week is
// ending is dated in the next week.

#include <cstddef>
#include <cstdint>
#include <string>

namespace tb {

// Values of RoyaltyPayout::typeOfPayment and EquityPayout::typeOfPayment.
namespace payoutSource {
inline constexpr std::int64_t boxOffice = 0;
inline constexpr std::int64_t syndication = 1;
}  // namespace payoutSource

// Session pay, buyout or residuals of a title in a week.
struct WeeklyEarnings {
  static constexpr std::size_t pieceLength = 64;  // elements do not change, see core/list.h

  std::int64_t filmId = 0;
  std::string filmTitle;
  std::int64_t filmType = 0;       // tb::filmType; 0 for every syndication residual
  double sessionEarned = 0;        // net of guild dues
  double buyoutEarned = 0;         // gross
  double residualsEarned = 0;      // net
  double royaltyEarned = 0;        // always 0
  std::string earningDescription;  // always empty
  std::int64_t yearNumber = 0;
  std::int64_t weekNumberForTracking = 0;
  bool operator==(const WeeklyEarnings&) const = default;
};

struct RoyaltyPayout {
  std::int64_t id = 0;  // filmId + 100
  std::int64_t filmId = 0;
  std::string title;
  std::int64_t yearNumber = 0;
  std::int64_t weekNumberForTracking = 0;
  double payout = 0;               // net of the agent's share
  std::int64_t typeOfPayment = 0;  // payoutSource
  std::int64_t sourceId = 0;       // the signed agent's id; 0 when none
  double agentEarnings = 0;
  double totalDealGross = 0;          // dollars that the share is a part of
  std::int64_t syndicationYears = 0;  // 0 for box office
  std::string syndicationName;        // empty for box office
  bool operator==(const RoyaltyPayout&) const = default;
};

struct EquityPayout {
  std::int64_t id = 0;  // filmId + 100
  std::int64_t filmId = 0;
  std::int64_t yearNumber = 0;
  std::int64_t weekNumberForTracking = 0;
  double payOut = 0;
  std::int64_t typeOfPayment = 0;  // payoutSource
  std::int64_t sourceId = 0;       // 3 for the box office of the player's own production, else 0
  double managerEarnings = 0;      // -1 for the box office of the player's own production, else 0
  bool operator==(const EquityPayout&) const = default;
};

}  // namespace tb
