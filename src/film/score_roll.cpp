#include "film/score_roll.h"

#include <algorithm>
#include <array>

#include "banks/critics_banks.h"
#include "core/bands.h"
#include "film/review_words.h"

namespace tb {

namespace {

// A count of `fewest` + RandomRange(`spread`).
struct CountRoll {
  std::int64_t fewest;
  std::int64_t spread;
};

// The numbers of audience ratings and of critics' ratings.
struct Audience {
  CountRoll ratings;
  CountRoll critics;
};

// For commercials, and for directors outside the table.
constexpr Audience smallAudience = {.ratings = {5, 6}, .critics = {1, 3}};
constexpr Audience festivalAudience = {.ratings = {1, 10}, .critics = {1, 5}};

// The range of scores by the director's rating ("standing"): the IMBD rating is from minRating to
// topRating() plus raisedRating, the metascore from minMetascore to the standing plus raisedMetascore. A
// standing below `minStanding` counts as `unknownTalent`.
struct Standing {
  std::int64_t upTo;
  Bank review;
  double minRating;
  double raisedRating;
  std::int64_t minMetascore;
  std::int64_t raisedMetascore;
  Audience released;  // for features and series
  Audience student;
  Audience shortFilm;
};

constexpr Audience cult = {.ratings = {25, 4'976}, .critics = {1, 25}};
constexpr Audience popular = {.ratings = {1'000, 99'001}, .critics = {5, 46}};
constexpr Audience worldwide = {.ratings = {1'000, 1'999'001}, .critics = {5, 96}};
constexpr Audience notedStudent = {.ratings = {5, 996}, .critics = {5, 21}};
constexpr Audience notedShort = {.ratings = {10, 991}, .critics = {5, 96}};

constexpr std::int64_t minStanding = 6;
constexpr std::int64_t unknownTalent = 10;

// The second of the five banks of long reviews is not used for releases.
constexpr std::array<Standing, 4> standings = {{
    {30, bank::longReviewBank1, 1, 0, 5, 0, cult, festivalAudience, festivalAudience},
    {71, bank::longReviewBank3, 2, 0, 20, 0, popular, festivalAudience, festivalAudience},
    {90, bank::longReviewBank4, 3, 3, 40, 20, worldwide, notedStudent, notedShort},
    {150, bank::longReviewBank5, 3, 3, 40, 20, worldwide, notedStudent, notedShort},
}};

std::int64_t roll(Game& game, CountRoll count) {
  return count.fewest + RandomRange(game.random, count.spread);
}

void rollAudience(Game& game, const Audience& audience, Scores& scores) {
  scores.numImbdRatings = roll(game, audience.ratings);
  scores.numMetascoreRatings = roll(game, audience.critics);
}

const Audience* audienceOf(const Standing& standing, std::int64_t typeOfFilm) {
  switch (typeOfFilm) {
    case filmType::feature:
    case filmType::series:
      return &standing.released;
    case filmType::studentFilm:
      return &standing.student;
    case filmType::shortFilm:
      return &standing.shortFilm;
    default:
      return nullptr;
  }
}

std::string featuredReview(Game& game, const Standing& standing, const Audition& project) {
  const std::string genre = project.genres.empty() ? "Drama" : project.genres.front();
  return drawReview(game, standing.review, project, genre);
}

// Redraws scores that reach the maximum.
void capScores(Game& game, Scores& scores) {
  if (scores.imbdRating >= 10) scores.imbdRating = RandomUnit(game.random, 8, 10);
  if (scores.imbdMetascore >= 100) scores.imbdMetascore = 90 + RandomRange(game.random, 11);
}

}  // namespace

double topRating(std::int64_t directorRating) {
  return std::max(1.0, static_cast<double>(directorRating / 10));
}

Scores rollScores(Game& game, const Audition& project) {
  const double top = topRating(project.directorRating);
  const std::int64_t reach = project.directorRating < minStanding ? unknownTalent : project.directorRating;
  Scores scores{.imbdRating = RandomUnit(game.random, 1, top),
                .imbdMetascore = RandomBetween(game.random, 5, reach)};
  rollAudience(game, smallAudience, scores);
  if (const Standing* const standing = bandOf(standings, reach)) {
    scores.featuredReview = featuredReview(game, *standing, project);
    scores.imbdRating = RandomUnit(game.random, standing->minRating, top + standing->raisedRating);
    scores.imbdMetascore =
        RandomBetween(game.random, standing->minMetascore, reach + standing->raisedMetascore);
    if (const Audience* const audience = audienceOf(*standing, project.typeOfFilm)) {
      rollAudience(game, *audience, scores);
    }
  }
  capScores(game, scores);
  return scores;
}

}  // namespace tb
