#pragma once

// The job board: temp jobs for a few weeks, with weekly pay and energy cost. The current job is in
// `weeklyJobTitle`, `weeklyJobIncome`, `weeklyEnergyCost` and `weeklyJobContractRemaining`.

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// A kind of job with its drawn terms.
struct JobList {
  std::string_view jobTitle;
  std::string_view jobDescription;
  std::int64_t energyCost;  // points per week, 6 to 22
  double jobPay;            // dollars per week, 200 to 500
};

// A job on the board.
struct JobOffer {
  JobList job;
  std::int64_t contractWeeks;  // 4 to 12
};

// Draws a board of zero to five jobs. A job can be listed twice, with different contract lengths.
[[nodiscard]] std::vector<JobOffer> openJobBoard(Game& game);

// Why no job can be accepted: a contract is running.
[[nodiscard]] Refusal jobRefusal(const WorldState& world);

// Accepts a job; refused while a contract is running. The energy is not checked, so a job can cost more than
// is available.
Refusal acceptJob(Game& game, const JobOffer& offer);

}  // namespace tb
