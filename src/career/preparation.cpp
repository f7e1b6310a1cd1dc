#include "career/preparation.h"

#include <algorithm>
#include <array>

#include "core/bands.h"
#include "core/talent_scores.h"

namespace tb {

namespace {

// Terms of the difficulty, in points.
constexpr double principalRole = 20;
constexpr double otherRole = 5;
constexpr double maxMoneyTerm = 100;  // for the budget and for the pay each
constexpr double unionForMembers = 10;
constexpr double unionForStrangers = 40;
constexpr double outsideTheUnion = 5;
constexpr double seriesRole = 10;

// By filmType; a series adds points by the number of episodes.
constexpr std::array<double, 5> difficultyOfType = {25, seriesRole, 5, 1, 5};

struct EpisodeBand {
  std::int64_t upTo;
  double points;
};
constexpr std::array<EpisodeBand, 2> episodeBands = {{{.upTo = 1, .points = 5}, {.upTo = 4, .points = 15}}};
constexpr double manyEpisodes = 25;

// Money in whole units, at most 100.
double moneyTerm(double amount, std::int64_t unit) {
  return std::min(static_cast<double>(static_cast<std::int64_t>(amount) / unit), maxMoneyTerm);
}

double unionTerm(const Audition& project, bool isGuildMember) {
  if (project.isUnion != 1) return outsideTheUnion;
  return isGuildMember ? unionForMembers : unionForStrangers;
}

double typeTerm(const Audition& project) {
  const double term = difficultyOfType[static_cast<std::size_t>(project.typeOfFilm)];
  if (project.typeOfFilm != filmType::series) return term;
  const EpisodeBand* const band = bandOf(episodeBands, project.numberOfEpisodesActed);
  return term + (band == nullptr ? manyEpisodes : band->points);
}

}  // namespace

double drawRehearsalRating(Game& game) {
  const double rating = performanceRoll(game, talentRoll(game));
  return rating == 0 ? static_cast<double>(RandomBetween(game.random, 1, 5)) : rating;
}

double drawPerformanceRating(Game& game, double rehearsalRating) {
  return rehearsalRating * RandomUnit(game.random, 0.6, 0.9);
}

std::int64_t drawHypeRating(Game& game, std::int64_t directorRating) {
  const std::int64_t standing = directorRating + overallTalent(game.world);
  const std::int64_t buzz = RandomRange(game.random, std::max<std::int64_t>(standing / 2, 2)) + 1;
  return (standing + buzz) / 3;
}

double auditionDifficulty(const Audition& project, bool isGuildMember) {
  const double part = project.isPrincipal == rolePart::principal ? principalRole : otherRole;
  return part + moneyTerm(project.budget, 100'000) + moneyTerm(project.payment, 1'000) +
         project.residual * 100 + unionTerm(project, isGuildMember) + typeTerm(project);
}

}  // namespace tb
