#include "career/traits.h"

#include <algorithm>

#include "core/format.h"
#include "core/house_notices.h"
#include "core/text.h"

namespace tb {

namespace {

// The factor on the next price, drawn uniformly.
constexpr std::array<std::int64_t, 10> energyCostMultiples = {1, 1, 1, 1, 1, 1, 1, 1, 2, 3};

}  // namespace

const std::array<Trait, 5> traits = {{
    {"CHARISMA", &WorldState::talentTrait1, &WorldState::talentTraitCost1, 1},
    {"ADAPTABILITY", &WorldState::talentTrait2, &WorldState::talentTraitCost2, 1},
    {"PHYSICALITY", &WorldState::talentTrait3, &WorldState::talentTraitCost3, 1},
    {"MEMORIZATION", &WorldState::talentTrait4, &WorldState::talentTraitCost4, 1},
    {"VOICE", &WorldState::talentTrait5, &WorldState::talentTraitCost5, 2},
}};

std::string spokenName(const Trait& trait) {
  std::string name = lowerCase(trait.label);
  name.front() = trait.label.front();
  return name;
}

std::int64_t nextValue(const WorldState& world, const Trait& trait) {
  return std::min(world.*trait.price / trait.pricePerPoint, maxTrait);
}

Refusal traitRefusal(const WorldState& world, const Trait& trait) {
  if (world.totalEnergyAvailable >= world.*trait.price) return {};
  return notEnoughEnergy(tb::format("You need {} energy to work on this trait and have {} left this week.",
                                    world.*trait.price, world.totalEnergyAvailable));
}

Refusal buyTrait(Game& game, int k) {
  WorldState& world = game.world;
  const Trait& trait = traits[static_cast<std::size_t>(k - 1)];
  if (world.*trait.points >= maxTrait) return {};
  if (Refusal refusal = traitRefusal(world, trait)) return refusal;

  world.*trait.points = nextValue(world, trait);
  world.totalEnergyAvailable -= world.*trait.price;
  world.*trait.price += trait.pricePerPoint * RandomElement<std::int64_t>(game.random, energyCostMultiples);
  return {};
}

}  // namespace tb
