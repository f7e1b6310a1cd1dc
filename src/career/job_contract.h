#pragma once

#include "core/game.h"

namespace tb {

// Runs a week of the job: counts down `weeklyJobContractRemaining`. When it reaches 0 the end of the contract
// is logged; pay, energy cost and title are cleared a week later. So a job of n weeks pays n times and costs
// energy at n + 1 refills.
void advanceJobContract(Game& game);

}  // namespace tb
