#pragma once

#include "core/game.h"

namespace tb {

// One week of the job: counts `weeklyJobContractRemaining` down. In the week in which it reaches 0 the player
// hears that the contract has ended, while pay, energy cost and title stay; a week later they are cleared. So
// a job of n weeks pays n times and takes its energy at n + 1 refills. Writes the job's keys and the cash.
void advanceJobContract(Game& game);

}  // namespace tb
