#include "career/colleagues.h"

#include "core/bands.h"
#include "core/talent_scores.h"

namespace tb {

namespace {

constexpr std::int64_t maxDistanceFromPerformer = 15;  // points
constexpr std::int64_t minBeginner = 1;
constexpr std::int64_t bestBeginner = 7;

// A director's bonus by a percentage roll. The last row covers the rest of the roll.
struct LeapBand {
  std::int64_t upTo;
  std::int64_t points;
};
constexpr std::array<LeapBand, 8> leaps = {{{.upTo = 50, .points = 2},
                                            {.upTo = 65, .points = 4},
                                            {.upTo = 75, .points = 6},
                                            {.upTo = 80, .points = 8},
                                            {.upTo = 82, .points = 10},
                                            {.upTo = 84, .points = 12},
                                            {.upTo = 85, .points = 15},
                                            {.upTo = 100, .points = -2}}};

std::int64_t drawNearPerformer(Game& game) {
  return overallTalent(game.world) + RandomRange(game.random, 2 * maxDistanceFromPerformer + 1) -
         maxDistanceFromPerformer;
}

std::int64_t beginnerIfNegative(Game& game, std::int64_t rating) {
  return rating < 0 ? RandomBetween(game.random, minBeginner, bestBeginner) : rating;
}

}  // namespace

std::int64_t drawDirectorForm(Game& game) {
  const std::int64_t level = drawNearPerformer(game);
  return level + bandOf(leaps, RandomRange(game.random, 101))->points;
}

std::int64_t drawDirectorRating(Game& game) { return beginnerIfNegative(game, drawDirectorForm(game)); }

std::int64_t drawWriterRating(Game& game) { return beginnerIfNegative(game, drawNearPerformer(game)); }

}  // namespace tb
