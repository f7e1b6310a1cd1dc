#include "career/colleagues.h"

#include "core/bands.h"
#include "core/talent_scores.h"

namespace tb {

namespace {

constexpr std::int64_t farthestFromPerformer = 15;  // points
constexpr std::int64_t leastBeginner = 1;
constexpr std::int64_t bestBeginner = 7;

// The leap of a director, by a percentage roll. The last row takes in what is left of the roll.
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

std::int64_t nearPerformer(Game& game) {
  return overallTalent(game.world) + RandomRange(game.random, 2 * farthestFromPerformer + 1) -
         farthestFromPerformer;
}

std::int64_t orBeginner(Game& game, std::int64_t rating) {
  return rating < 0 ? RandomBetween(game.random, leastBeginner, bestBeginner) : rating;
}

}  // namespace

std::int64_t drawDirectorForm(Game& game) {
  const std::int64_t level = nearPerformer(game);
  return level + bandOf(leaps, RandomRange(game.random, 101))->points;
}

std::int64_t drawDirectorRating(Game& game) { return orBeginner(game, drawDirectorForm(game)); }

std::int64_t drawWriterRating(Game& game) { return orBeginner(game, nearPerformer(game)); }

}  // namespace tb
