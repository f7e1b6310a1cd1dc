#include "life/partner.h"

#include <algorithm>
#include <utility>

#include "core/calendar.h"
#include "core/chirps.h"
#include "core/text.h"

namespace tb {

namespace {

constexpr std::size_t keptLines = 31;
constexpr std::int64_t weeksPerMonth = 4;

// Added to a match's id for the account that posts.
constexpr std::int64_t partnerAccounts = 200'000;

std::int64_t shareOf(RandomSource& random, double reach) {
  return static_cast<std::int64_t>(RandomUnit(random, 0.1, 0.5) * reach);
}

}  // namespace

std::optional<std::size_t> partnerIndex(const WorldState& world) {
  const List<Matches>& matches = world.saveAllMatchesList;
  for (std::size_t index = 0; index < matches.size(); ++index) {
    if (matches[index].relationshipState >= bond::dating) return index;
  }
  return {};
}

const Matches* currentPartner(const WorldState& world) {
  const auto index = partnerIndex(world);
  return index ? &world.saveAllMatchesList[*index] : nullptr;
}

void moveMeter(WorldState& world, double points) {
  const auto index = partnerIndex(world);
  if (!index) return;
  Matches& partner = world.saveAllMatchesList.edit(*index);
  partner.relationshipStatus = std::min(partner.relationshipStatus + points, mostMeter);
}

std::int64_t shownMeter(const Matches& partner) {
  return static_cast<std::int64_t>(std::max(partner.relationshipStatus, 0.0));
}

bool isPregnant(const Matches& partner) { return partner.timeToBirth >= 1; }

std::int64_t weeksTogether(const WorldState& world, const Matches& partner) {
  return world.weekNumberForTracking - partner.weekStartedDating;
}

std::string spanWords(std::int64_t weeks, std::int64_t monthsFrom) {
  if (weeks >= weeksPerYear) return counted(weeks / weeksPerYear, "year");
  return weeks >= monthsFrom ? counted(weeks / weeksPerMonth, "month") : counted(weeks, "week");
}

void tellPartners(WorldState& world, std::string line) {
  TextList& lines = world.relationshipTracker;
  lines.push_front(std::move(line));
  while (lines.size() > keptLines) lines.pop_back();
}

void postAsPartner(Game& game, const Matches& partner, std::string message) {
  WorldState& world = game.world;
  world.chirpId += 1;
  Chirp chirp{.id = world.chirpId,
              .artistId = partner.matchId + partnerAccounts,
              .chirpName = partner.name,
              .message = std::move(message),
              .weekNumberForTracking = world.weekNumberForTracking,
              .yearNumber = world.yearNumber,
              .news = notThePlayer,
              .imageString = partner.matchImage,
              .typeOfAccount = accountType::partner,
              .timestamp = game.clock()};
  const double share = RandomUnit(game.random, 0.05, 0.2);
  const double reach = share * RandomUnit(game.random, 100, 10'000);
  chirp.likeCount = shareOf(game.random, reach);
  chirp.reChirpCount = shareOf(game.random, reach);
  addChirp(world, std::move(chirp));
}

}  // namespace tb
