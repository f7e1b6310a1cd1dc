#include "core/chirps.h"

#include <algorithm>
#include <utility>

namespace tb {

namespace {

constexpr std::size_t keptChirps = 200;

// The smallest and largest shares of a post's likes that become comments and rechirps.
struct Echo {
  double least;
  double most;
};

constexpr Echo crowdEcho = {0.1, 0.5};
constexpr Echo fanEcho = {0.05, 0.20};

void drawEcho(RandomSource& random, const Echo& echo, double likes, Chirp& chirp) {
  chirp.likeCount = static_cast<std::int64_t>(likes);
  const auto liked = static_cast<double>(chirp.likeCount);
  chirp.commentCount = static_cast<std::int64_t>(liked * RandomUnit(random, echo.least, echo.most));
  chirp.reChirpCount = static_cast<std::int64_t>(liked * RandomUnit(random, echo.least, echo.most));
}

}  // namespace

Chirp industryChirp(const Game& game, std::string name, std::string picture, std::string message) {
  const WorldState& world = game.world;
  return {.id = world.chirpId,
          .artistId = notThePlayer,
          .chirpName = std::move(name),
          .message = std::move(message),
          .weekNumberForTracking = world.weekNumberForTracking,
          .yearNumber = world.yearNumber,
          .news = notThePlayer,
          .imageString = std::move(picture),
          .typeOfAccount = accountType::industry,
          .timestamp = game.clock()};
}

Chirp playerChirp(Game& game, std::string message) {
  WorldState& world = game.world;
  world.chirpId += 1;
  Chirp chirp{.id = world.chirpId,
              .chirpName = world.myName,
              .message = std::move(message),
              .weekNumberForTracking = world.weekNumberForTracking,
              .yearNumber = world.yearNumber,
              .typeOfAccount = accountType::player,
              .timestamp = game.clock()};
  const std::int64_t audience = std::max<std::int64_t>(world.totalFans, 0);
  const auto reach = static_cast<double>(RandomRange(game.random, audience + 1));
  drawEcho(game.random, fanEcho, RandomUnit(game.random, 0.005, 0.02) * reach, chirp);
  return chirp;
}

void addChirp(WorldState& world, Chirp chirp) {
  List<Chirp>& chirps = world.saveAllChirpList;
  chirps.push_back(std::move(chirp));
  if (chirps.size() <= keptChirps) return;
  const auto oldest = std::ranges::find(chirps, 0, &Chirp::isPinned);
  chirps.erase_at(oldest == chirps.end() ? 0 : static_cast<std::size_t>(oldest - chirps.begin()));
}

void drawCrowdReach(RandomSource& random, Chirp& chirp) {
  const double share = RandomUnit(random, 0.05, 0.20);
  drawEcho(random, crowdEcho, share * RandomUnit(random, 100, 100'000), chirp);
}

}  // namespace tb
