#include "career/traits.h"

#include <algorithm>
#include <format>

#include "core/house_notices.h"
#include "core/save.h"

namespace tb {

namespace {

// How much dearer the next point gets, each with the same chance.
constexpr std::array<std::int64_t, 10> energyCostMultiples = {1, 1, 1, 1, 1, 1, 1, 1, 2, 3};

template <auto Points, auto Price>
void saveTrait(Game& game) {
  save<&WorldState::totalEnergyAvailable, Points, Price>(game);
}

template <auto Points, auto Price>
constexpr Trait trait(std::string_view label, std::int64_t pricePerPoint = 1) {
  return {.label = label,
          .points = Points,
          .price = Price,
          .pricePerPoint = pricePerPoint,
          .save = saveTrait<Points, Price>};
}

}  // namespace

const std::array<Trait, 5> traits = {
    trait<&WorldState::talentTrait1, &WorldState::talentTraitCost1>("CHARISMA"),
    trait<&WorldState::talentTrait2, &WorldState::talentTraitCost2>("ADAPTABILITY"),
    trait<&WorldState::talentTrait3, &WorldState::talentTraitCost3>("PHYSICALITY"),
    trait<&WorldState::talentTrait4, &WorldState::talentTraitCost4>("MEMORIZATION"),
    trait<&WorldState::talentTrait5, &WorldState::talentTraitCost5>("VOICE", 2),
};

std::int64_t nextValue(const WorldState& world, const Trait& trait) {
  return std::min(world.*trait.price / trait.pricePerPoint, highestTrait);
}

Refusal buyTrait(Game& game, int k) {
  WorldState& world = game.world;
  const Trait& trait = traits[static_cast<std::size_t>(k - 1)];
  if (world.*trait.points >= highestTrait) return {};
  if (world.totalEnergyAvailable < world.*trait.price) {
    return notEnoughEnergy(std::format("You need {} energy to work on this trait and have {} left this week.",
                                       world.*trait.price, world.totalEnergyAvailable));
  }

  world.*trait.points = nextValue(world, trait);
  world.totalEnergyAvailable -= world.*trait.price;
  world.*trait.price += trait.pricePerPoint * RandomElement<std::int64_t>(game.random, energyCostMultiples);
  trait.save(game);
  return {};
}

}  // namespace tb
