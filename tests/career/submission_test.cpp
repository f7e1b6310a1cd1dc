#include "career/submission.h"

#include <gtest/gtest.h>

#include "career/preparation.h"
#include "career/schedule.h"
#include "tests/record_text.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Submission : test::RuleTest {
  Movie movie = {.title = "Neon Horizon",
                 .shortSummary = "A courier.",
                 .type = filmType::series,
                 .genre = {"Sci-Fi", "Thriller"},
                 .longSummaryTemplate = "{name} runs.",
                 .imageString = "neonHorizon.png"};
  CastingListing listing = {.filmId = 7,
                            .movie = &movie,
                            .role = "Recurring",
                            .isPrincipal = 1,
                            .isUnion = 1,
                            .payment = 1482,
                            .budget = 300'000,
                            .weekAudition = 5,
                            .weekToWork = 20,
                            .residual = 0.01,
                            .numberOfEpisodesActed = 4,
                            .directorRating = 6,
                            .directorName = "Abbas Abendroth",
                            .characterName = "{title} Vale"};

  void scriptSubmission() {
    random.unit(0).unit(1).unit(0.5).range(8, 7).range(5, 4);
    random.range(3, 2).range(92, 0).range(254, 0).range(31, 0).range(7, 3).range(60, 0);
  }
};

TEST_F(Submission, WritesTheWholeRecord) {
  world.isSAG = 1;
  world.filmId = 3;
  world.weekNumber = 21;
  world.weekNumberForTracking = 1;
  world.yearNumber = 2030;
  world.experience = 100;
  world.totalEnergyAvailable = 20;
  // x 0, a 1, b 0.75, c 1, s 1.75: top 0.6875 is below low 0.75, and the draw is top: (1 + 1.75 + 0.6875) / 5
  scriptSubmission();
  EXPECT_FALSE(submitToCastingListing(game, listing));
  // Filming is next year, since week 20 is behind week 21; the hype is (6 + 1 + 3) / 3; the difficulty
  // 20 + 3 + 1 + 1 + 10 + 10 + 15.
  EXPECT_EQ(test::shown(world.saveAllAuditionList),
            "(filmId 7, imageString neonHorizon.png, typeOfFilm 1, isPrincipal 1, isUnion 1, "
            "title Neon Horizon, description A courier., roleDescription {title} Vale runs., "
            "genres [Sci-Fi, Thriller], role Recurring, characterName {title} Vale, numberOfEpisodesActed 4, "
            "numberOfEpisodesTotal 12, isContinued 0, seasonNumber 1, submittedYear 2030, workYear 2031, "
            "weekSubmitted 1, weekAudition 5, weekToWork 20, weekReleased 35, payment 1482, residual 0.01, "
            "budget 300000, source The Backstage, rehearsalRating 0.69, performanceRating 0.5175, "
            "hypeRating 3, auditionDifficulty 60, directorRating 6, directorName Abbas Abendroth, "
            "writerName Abbas Abendroth, writerRating 4)");
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  expectToldInTheLogAlone("You submitted for Neon Horizon today, and it feels good to finally press send.");
}

TEST_F(Submission, OutsideSeriesNothingContinuesAndTheCounterOnlyRises) {
  movie.type = filmType::shortFilm;
  listing.isUnion = 0;
  listing.numberOfEpisodesActed = 0;
  world.filmId = 9;  // a later listing was answered first
  scriptSubmission();
  EXPECT_FALSE(submitToCastingListing(game, listing));
  EXPECT_EQ(world.saveAllAuditionList[0].isContinued, -1);
  EXPECT_EQ(world.saveAllAuditionList[0].seasonNumber, -1);
  EXPECT_EQ(world.filmId, 9);
}

TEST_F(Submission, RefusesInItsOrderAndTakesNothing) {
  world.totalEnergyAvailable = 19;
  const auto refusal = [this] { return submitToCastingListing(game, listing).value_or(Notice{}); };
  EXPECT_TRUE(refusal().message.starts_with("\nBecome a member of the Actor's Guild to gain access"));
  listing.isUnion = 0;
  EXPECT_EQ(refusal().title, "⚡️ Not Enough Energy! ⚡️");
  world.isSAG = 1;
  EXPECT_TRUE(refusal().message.ends_with("you are not permitted to work non-union roles."));
  world.saveAllAuditionList.push_back({.filmId = 7});
  EXPECT_EQ(refusal().title, "🎭 SUBMITTED! 🎭");
  EXPECT_EQ(world.totalEnergyAvailable, 19);
  EXPECT_EQ(world.saveAllAuditionList.size(), 1u);
  EXPECT_EQ(world.filmId, 0);
}

TEST_F(Submission, DifficultyAddsItsTerms) {
  Audition project = {.typeOfFilm = 3, .isPrincipal = 0, .isUnion = 0, .payment = 999.9, .budget = 99'999};
  EXPECT_EQ(auditionDifficulty(project, false), 5 + 0 + 0 + 0 + 5 + 1);
  project = {.typeOfFilm = 0,
             .isPrincipal = 1,
             .isUnion = 1,
             .payment = 100'999,
             .residual = 0.015,
             .budget = 10'099'999};
  EXPECT_DOUBLE_EQ(auditionDifficulty(project, false), 20 + 100 + 100 + 1.5 + 40 + 25);
  project.payment = 5e6;
  project.budget = 3e9;
  EXPECT_DOUBLE_EQ(auditionDifficulty(project, true), 20 + 100 + 100 + 1.5 + 10 + 25);
  project = {.typeOfFilm = 2, .isPrincipal = 2, .isUnion = 0, .payment = 1'999, .budget = 250'000};
  EXPECT_EQ(auditionDifficulty(project, true), 5 + 2 + 1 + 5 + 5);
  const std::pair<int, int> episodes[] = {{1, 15}, {2, 25}, {4, 25}, {5, 35}, {12, 35}};
  for (const auto& [count, points] : episodes) {
    EXPECT_EQ(auditionDifficulty({.typeOfFilm = 1, .numberOfEpisodesActed = count}, true), 5 + 5 + points)
        << count;
  }
}

TEST_F(Submission, HypeCutsTowardsZeroEvenBelowIt) {
  random.range(2, 1);
  EXPECT_EQ(drawHypeRating(game, -12), -3);  // (-11 + 2) / 3
  random.range(2, 0);
  EXPECT_EQ(drawHypeRating(game, -12), -3);  // -10 / 3
  world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 = 80;
  random.range(85, 84);
  EXPECT_EQ(drawHypeRating(game, 90), 85);  // (170 + 85) / 3
}

TEST_F(Submission, FilmingBehindThePresentWeekIsNextYears) {
  world.yearNumber = 2028;
  world.weekNumber = 30;
  EXPECT_EQ(yearOfWork(world, 52 * 3 + 30), 2028);
  EXPECT_EQ(yearOfWork(world, 52 * 3 + 29), 2029);
  world.weekNumber = 2;
  EXPECT_EQ(yearOfWork(world, 104), 2029);  // the last week of a year counts as its first
  world.weekNumber = 1;
  EXPECT_EQ(yearOfWork(world, 104), 2028);
}

}  // namespace
}  // namespace tb
