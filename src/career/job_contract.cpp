#include "career/job_contract.h"

#include "core/log.h"
namespace tb {

void advanceJobContract(Game& game) {
  WorldState& world = game.world;
  if (world.weeklyJobContractRemaining < 1) {
    world.weeklyJobIncome = 0;
    world.weeklyEnergyCost = 0;
    world.weeklyJobTitle.clear();
  } else {
    world.weeklyJobContractRemaining -= 1;
    if (world.weeklyJobContractRemaining == 0)
      feedLine(world, NewsKind::jobEnded, "The contract for your job has ended");
  }
}

}  // namespace tb
