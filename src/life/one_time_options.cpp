#include "life/one_time_options.h"

#include <algorithm>
#include <array>

#include "career/classes.h"
#include "core/format.h"
#include "core/house_notices.h"

namespace tb {

namespace {

constexpr std::int64_t fineArts = 900;
constexpr std::int64_t newDoctor = 901;
constexpr std::int64_t forgottenBribes = 902;

constexpr std::array<OneTimeOption, 3> oneTimeTable = {{
    {fineArts, "Bachelor of Fine Arts", "+500 Experience • Complete all acting classes.", 0, 500},
    {newDoctor, "Find a New Doctor", "Resets your Health Checkup to 0", 25'000, 0},
    {forgottenBribes, "Bribed", "Resets the cost of audition bribes", 50'000, 0},
}};

constexpr std::int64_t firstBribePrice = 500;  // dollars

}  // namespace

std::span<const OneTimeOption> oneTimeOptions() { return oneTimeTable; }

bool isClaimed(const WorldState& world, const OneTimeOption& option) {
  return std::ranges::contains(world.saveOneTime, option.id);
}

double cashTakenBy(const OneTimeOption& option) { return option.id == forgottenBribes ? 0 : option.cost; }

Refusal oneTimeRefusal(const WorldState& world, const OneTimeOption& option) {
  if (isClaimed(world, option)) {
    return Notice{.title = "Already Purchased",
                  .message = "\nYou have already purchased and gained this benefit."};
  }
  const std::int64_t finished = finishedClasses(world);
  if (option.id != fineArts || finished == std::ssize(julliardClasses)) return {};
  return requirementsNotMet(tb::format("{} of {} classes", finished, julliardClasses.size()));
}

Refusal claimOneTimeOption(Game& game, const OneTimeOption& option) {
  WorldState& world = game.world;
  if (Refusal refusal = oneTimeRefusal(world, option)) return refusal;
  world.totalCashAvailable -= cashTakenBy(option);
  world.experience += option.bonus;
  if (option.id == newDoctor) world.annualCheckupTotal = std::max<std::int64_t>(world.annualCheckupTotal, 0);
  if (option.id == forgottenBribes) world.saveBribePrice = firstBribePrice;
  world.saveOneTime.push_back(option.id);
  return {};
}

}  // namespace tb
