#pragma once

// Stakes in Shark Box ventures. A deal's whole future is drawn when the deal is closed and revealed over
// time.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// Values of SharkBoxDeal::exitType.
namespace ventureExit {
inline constexpr std::int64_t acquired = 1;
inline constexpr std::int64_t wentPublic = 2;
inline constexpr std::int64_t shutDown = 3;
}  // namespace ventureExit

// Values of SharkBoxDeal::status.
namespace ventureStatus {
inline constexpr std::int64_t active = 0;
inline constexpr std::int64_t exited = 1;
}  // namespace ventureStatus

struct SharkBoxRound {
  std::string name;  // "Seed", "Series A", ...
  std::int64_t week = 0;
  double valuation = 0;
  double dilution = 0;  // fraction of the company that the round sells
  bool isDown = false;  // valued below the previous round
  bool operator==(const SharkBoxRound&) const = default;
};

struct SharkBoxDeal {
  std::int64_t id = 0;
  std::string productName;
  std::string tagline;
  std::string category;
  std::int64_t colorSeed = 0;
  std::string founderName;
  std::string founderTitle;
  std::string founderMonogram;
  std::string founderImage;
  double askAmount = 0;
  double askEquity = 0;  // a fraction
  double investedAmount = 0;
  double equity = 0;  // the player's current fraction
  std::int64_t weekAccepted = 0;
  std::vector<SharkBoxRound> rounds;  // the first is "Seed"
  std::int64_t roundsResolved = 1;    // "Seed" counts as resolved
  std::vector<double> stakeHistory;   // the stake's value after each later round
  std::int64_t lastOfferedRound = 0;  // index in `rounds` of the last one that was offered by e-mail
  std::int64_t exitWeek = 0;
  std::int64_t exitType = 0;  // ventureExit
  double exitMultiple = 0;    // of the stake's last value
  std::int64_t status = 0;    // ventureStatus
  double realizedCash = 0;
  std::int64_t weekLastViewed = 0;
  std::int64_t modelVersion = 0;  // version of the rules that drew the future
  double quality = 0;             // 0 to 1, never shown
  double ttmRevenue = 0;          // of the last twelve months
  std::int64_t growthPct = 0;
  std::int64_t grossMargin = 0;  // percent
  bool operator==(const SharkBoxDeal&) const = default;
};

}  // namespace tb
