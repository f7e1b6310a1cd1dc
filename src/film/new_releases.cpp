#include "film/new_releases.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "banks/critics_banks.h"
#include "banks/draw.h"
#include "banks/names.h"
#include "core/bands.h"
#include "core/ended_week.h"
#include "film/film_record.h"
#include "film/review_words.h"

namespace tb {

namespace {

struct StarBand {
  double from;
  double upTo;
  Bank review;
  std::string_view stars;
};

// By the mean of both scores, 0 to 10. A score in a gap between two bands gives no quote.
constexpr std::array<StarBand, 5> starBands = {{
    {.from = 0, .upTo = 1.99, .review = bank::longReviewBank1, .stars = "★"},
    {.from = 2, .upTo = 3.99, .review = bank::longReviewBank2, .stars = "★★"},
    {.from = 4, .upTo = 5.99, .review = bank::longReviewBank3, .stars = "★★★"},
    {.from = 6, .upTo = 7.99, .review = bank::longReviewBank4, .stars = "★★★★"},
    {.from = 8, .upTo = 20, .review = bank::longReviewBank5, .stars = "★★★★★"},
}};

MetReview cardOf(Game& game, const Film& film) {
  MetReview card{.id = 100 + RandomRange(game.random, 9'999'900),
                 .filmTitle = film.title,
                 .score = film.imbdMetascore,
                 .starString = "★",
                 .filmType = film.typeOfFilm == filmType::series ? "TV" : "Movie",
                 .description = film.movieDescription,
                 .imageString = film.imageString,
                 .season = film.seasonNumber};
  const bool isMale = RandomRange(game.random, 2) == 0;
  card.reviewerName = inventedName(game.random, isMale);
  card.reviewerCompany = drawFreshRow(game, bank::reviewerCompanyBank);
  if (const StarBand* const band = bandOf(starBands, meanScore(film))) {
    card.starString = band->stars;
    card.reviewString = drawReview(game, band->review, film, mainGenre(film));
  }
  return card;
}

}  // namespace

void offerRelease(WorldState& world) {
  world.releaseOffered = std::ranges::any_of(world.saveAllAuditionList, [&](const Audition& project) {
    return project.funnelStage == funnel::wrapped && project.typeOfFilm != filmType::commercial &&
           project.weekReleased == endedTrackingWeek(world);
  });
}

std::vector<std::size_t> newReleases(const WorldState& world) {
  std::vector<std::size_t> found;
  for (std::size_t index = 0; index < world.saveAllFilmList.size(); ++index) {
    const Film& film = world.saveAllFilmList[index];
    if (film.typeOfFilm == filmType::commercial) continue;
    if (film.weekReleased == endedTrackingWeek(world)) found.push_back(index);
  }
  return found;
}

void writeReleaseReviews(Game& game) {
  game.world.newReleaseReviews.clear();
  for (const std::size_t index : newReleases(game.world)) {
    game.world.newReleaseReviews.push_back(cardOf(game, game.world.saveAllFilmList[index]));
  }
}

}  // namespace tb
