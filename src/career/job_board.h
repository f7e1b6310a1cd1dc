#pragma once

// The job board: temp jobs for a few weeks, of weekly pay against weekly energy. The state of the one job
// that is held is `weeklyJobTitle`, `weeklyJobIncome`, `weeklyEnergyCost` and `weeklyJobContractRemaining`.

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// A job of the list that a board is filled from, as it is paid today.
struct JobList {
  std::string_view jobTitle;
  std::string_view jobDescription;
  std::int64_t energyCost;  // each week, 6 to 22
  double jobPay;            // dollars a week, 200 to 500
};

// A job on the board.
struct JobOffer {
  JobList job;
  std::int64_t contractWeeks;  // 4 to 12
};

// Draws today's board: none to five jobs. One job can stand there twice, on terms of its own.
[[nodiscard]] std::vector<JobOffer> openJobBoard(Game& game);

// Why no job can be taken now: a contract runs.
[[nodiscard]] Refusal jobRefusal(const WorldState& world);

// Takes a job. Refuses while a contract runs; asks for no energy, so a job can take more than the week has.
// Writes the job's variables and the log.
Refusal acceptJob(Game& game, const JobOffer& offer);

}  // namespace tb
