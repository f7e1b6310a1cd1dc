#include "social/star_meter.h"

#include <algorithm>
#include <cmath>

#include "film/catalogue.h"

namespace tb {

namespace {

constexpr std::size_t keptRanks = 52;
constexpr double unknownUpTo = 1e6;            // dollars of gross
constexpr double leadingFrom = 4'309'711'030;  // dollars; the gross of the hundredth leading star
constexpr std::int64_t leadingPlaces = 100;
constexpr std::int64_t lastPlace = 100'000;
// A straight line over the logarithm, between the two grosses and the two places above.
constexpr double placesPerDecade = -27486.978996860493;
constexpr double placeOfOneDollar = 264921.87398116296;

double careerGross(const WorldState& world) {
  double sum = 0;
  for (const Film& film : world.saveAllFilmList) {
    if (film.isPrincipal == rolePart::principal) sum += film.boxOfficeGross;
  }
  return sum;
}

std::int64_t placeOf(double gross) {
  if (gross <= unknownUpTo) return lastPlace;
  if (gross >= leadingFrom) return leadingPlaces;
  const double place = std::round(placesPerDecade * std::log10(gross) + placeOfOneDollar);
  return std::clamp(static_cast<std::int64_t>(place), leadingPlaces, lastPlace);
}

// The performer comes after a star with the same gross.
std::int64_t placeAmongStars(double gross) {
  return 1 + std::ranges::count_if(leadingStars(),
                                   [gross](const Bankable& star) { return star.totalGross >= gross; });
}

}  // namespace

void rankStar(Game& game) {
  WorldState& world = game.world;
  if (world.weekNumber % 2 != 0 || world.saveAllFilmList.empty()) return;
  const double gross = careerGross(world);
  world.saveBoxOffice = std::max(world.saveBoxOffice, static_cast<std::int64_t>(gross));
  const std::int64_t place = placeOf(gross);
  world.saveStarRankingMeter.push_back(place <= leadingPlaces ? placeAmongStars(gross) : place);
  if (world.saveStarRankingMeter.size() > keptRanks) world.saveStarRankingMeter.pop_front();
}

}  // namespace tb
