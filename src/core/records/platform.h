#pragma once

// The player's streaming company and its rivals.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// A member of the executive team. Former members stay in the list and keep their shares.
struct Employee {
  static constexpr std::int64_t stillActive = -1;

  std::int64_t id = 0;
  std::string name;
  std::int64_t salary = 0;      // dollars per week
  std::int64_t department = 0;  // 0 technology, 1 finance, 2 operations
  std::string imageString;
  std::int64_t originalRating = 0;
  std::int64_t rating = 0;
  double motiviation = 0;
  std::int64_t yearSigned = 0;
  std::int64_t weekSigned = 0;
  std::int64_t sharesOwned = 0;
  std::int64_t energyBoost = 0;  // subtracted from the company's weekly energy cost
  std::int64_t yearEnded = stillActive;
  bool operator==(const Employee&) const = default;
};

// A technology tier that the company owns; one per category.
struct StreamingTechUpgrade {
  std::int64_t uniqueId = 0;  // 1 to 30
  std::string title;
  std::int64_t categoryId = 0;  // 1 to 6
  std::string category;
  std::int64_t tier = 0;        // 1 to 5
  std::int64_t cost = 0;        // dollars
  std::int64_t weeklyCost = 0;  // dollars
  std::int64_t requiredSubscribers = 0;
  std::string description;
  double bonus = 0;  // drawn at purchase and added to the bonus of the tier it replaces
  bool operator==(const StreamingTechUpgrade&) const = default;
};

// A capital raise. It is open until the deadline or until somebody invests; its shares count from the
// investment on.
struct FundraisingRound {
  std::int64_t id = 0;
  double equityOffered = 0;           // a fraction
  std::int64_t valuationOffered = 0;  // dollars
  double cashOffered = 0;
  std::int64_t sharesToIssue = 0;
  double interest = 0;
  std::vector<std::string> investorName;
  std::vector<double> investorAmount;
  std::vector<double> investorValuation;
  std::int64_t weeksToClose = 0;  // the week of the deadline, despite the name
  bool operator==(const FundraisingRound&) const = default;
};

// RivalPlatform::status.
namespace rivalStatus {
inline constexpr std::int64_t trading = 0;
inline constexpr std::int64_t acquired = 1;
}  // namespace rivalStatus

struct RivalPlatform {
  std::int64_t id = 0;  // 0 to 6
  std::string name;
  std::int64_t subscribers = 0;
  double weeklyRevenue = 0;
  double weeklyCosts = 0;
  double cashOnHand = 0;
  double infrastructureValue = 0;
  double growthRate = 0;  // per week, a fraction
  std::int64_t sharesOutstanding = 0;
  std::int64_t specialty = 0;        // the kind of content lot that it bids for, 0 to 4
  std::vector<double> priceHistory;  // share price of the last 40 weeks, newest last
  std::int64_t status = 0;           // rivalStatus
  bool operator==(const RivalPlatform&) const = default;
};

// The company's shares in a rival.
struct RivalHolding {
  std::int64_t rivalId = 0;
  std::int64_t shares = 0;
  double costBasis = 0;
  bool operator==(const RivalHolding&) const = default;
};

}  // namespace tb
