#include "wealth/best_figures.h"

#include <algorithm>

namespace tb {

void updateBestFigures(Game& game) {
  WorldState& world = game.world;
  world.bestNetworth = std::max(world.bestNetworth, static_cast<std::int64_t>(world.saveNetworth));
  world.bestBoxOffice = std::max(world.bestBoxOffice, world.saveBoxOffice);
}

}  // namespace tb
