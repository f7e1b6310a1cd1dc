#include "wealth/market_index.h"

namespace tb {

namespace {

// The limits of an index. It moves by up to `step`; at or past a limit it is set just inside.
struct Corridor {
  double step;
  double floor;
  double aboveFloor;
  double ceiling;
  double belowCeiling;
};

constexpr Corridor realEstate = {
    .step = 0.01, .floor = 0.5, .aboveFloor = 0.51, .ceiling = 1.5, .belowCeiling = 1.49};
constexpr Corridor cards = {
    .step = 0.05, .floor = 0.3, .aboveFloor = 0.31, .ceiling = 1.5, .belowCeiling = 1.49};

constexpr std::size_t weeksOfHistory = 48;

void move(RandomSource& random, const Corridor& corridor, double& index, RealList& history) {
  index += RandomUnit(random, -corridor.step, corridor.step);
  if (index <= corridor.floor) index = corridor.aboveFloor;
  if (index >= corridor.ceiling) index = corridor.belowCeiling;
  const bool full = history.size() >= weeksOfHistory;
  history.push_back(index);
  if (full) history.pop_front();
}

}  // namespace

void moveRealEstateIndex(Game& game) {
  move(game.random, realEstate, game.world.realEstateIndex, game.world.trackRealEstateIndex);
}

void moveCardIndex(Game& game) { move(game.random, cards, game.world.cardIndex, game.world.trackCardIndex); }

}  // namespace tb
