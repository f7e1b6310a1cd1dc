#include "career/audition_week.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

enum class Die : std::uint8_t { lose, win, breakFace, none };

// The draws that decide on a project, each from its range.
struct Draws {
  std::int64_t chance;
  std::int64_t score;
  std::optional<std::int64_t> letThrough = {};
  Die die = Die::none;
};

struct AuditionWeek : test::RuleTest {
  AuditionWeek() {
    world.weekNumberForTracking = 10;
    world.isSAG = 1;
  }

  Audition submitted() {
    return {.filmId = 1,
            .typeOfFilm = filmType::shortFilm,
            .isPrincipal = 1,
            .title = "Saltwater",
            .weekAudition = 14,
            .weekToWork = 20,
            .weekReleased = 30,
            .sourceId = 77,
            .auditionDifficulty = 30.9};
  }
  Audition invited() {
    Audition project = submitted();
    project.funnelStage = funnel::invited;
    project.weekAudition = 10;
    project.rehearsalRating = 25.9;
    return project;
  }
  Audition booked() {
    Audition project = submitted();
    project.funnelStage = funnel::booked;
    project.weekToWork = 10;
    return project;
  }

  // `best` is the top of the score: the showreel's or the rehearsal's.
  test::ScriptedRandom& script(const Draws& draws, std::int64_t best) {
    random.range(31, draws.chance).range(best + 1, draws.score);
    if (draws.letThrough) random.range(best + 1, *draws.letThrough);
    if (draws.die != Die::none) random.range(3, static_cast<std::int64_t>(draws.die));
    return random;
  }
  test::ScriptedRandom& scriptSubmission(const Draws& draws) {
    world.showreelScore = 20;
    return script(draws, 20);
  }
  test::ScriptedRandom& scriptAudition(const Draws& draws) { return script(draws, 25); }

  // One week of this project alone.
  const Audition& live(const Audition& project) {
    world.saveAllAuditionList.assign(std::vector{project});
    world.saveAllTalentAgents.assign(std::vector<TalentAgent>{{.id = 5}, {.id = 77, .isSigned = 1}});
    world.WeekFeed.clear();
    world.activityTracker.clear();
    world.experience = 0;
    game.told = {};
    resolveAuditionsForWeek(game);
    return world.saveAllAuditionList[0];
  }
  double agentsMood() const { return world.saveAllTalentAgents[1].relationship - 65; }

  void expectInvited(const Audition& after) {
    EXPECT_EQ(after.funnelStage, funnel::invited);
    EXPECT_EQ(agentsMood(), 2);
    EXPECT_EQ(world.WeekFeed, (TextList{"You were invited to audition for Saltwater in 3 week(s)."}));
    EXPECT_EQ(world.activityTracker,
              (TextList{"You secured an audition for Saltwater, giving you 3 week(s) to get ready."}));
    EXPECT_DOUBLE_EQ(world.experience, 30.9 * 0.25);
  }
  void expectSilence(const Audition& after, std::int64_t funnelStage) {
    EXPECT_EQ(after.funnelStage, funnelStage);
    expectNothingTold();
    EXPECT_EQ(world.experience, 0);
  }
};

TEST_F(AuditionWeek, NothingMovesBeforeItsWeekAndALateSubmissionClosesInSilence) {
  Audition late = submitted();
  late.weekAudition = 10;
  expectSilence(live(late), funnel::closed);
  EXPECT_EQ(agentsMood(), 0);
  for (const std::int64_t week : {9, 11}) {  // an invitation of last week was turned down, for ever
    Audition project = invited();
    project.weekAudition = week;
    expectSilence(live(project), funnel::invited);
  }
  Audition project = booked();
  project.weekToWork = 11;
  expectSilence(live(project), funnel::booked);
  EXPECT_TRUE(world.saveAllFilmList.empty());
}

TEST_F(AuditionWeek, ASubmissionIsInvitedByItsScoreAndTheDieOrABribe) {
  struct Case {
    const char* what;
    Draws draws;
    bool isInvited;
    std::int64_t isSAG = 1;
    std::int64_t isPrincipal = 1;
    std::int64_t didBribe = 0;
  };
  const Case cases[] = {
      {"a score that meets the chance", {.chance = 20, .score = 20, .die = Die::win}, true},
      {"no break for a member", {.chance = 20, .score = 20, .die = Die::breakFace}, false},
      {"19 below 20 lets through", {.chance = 21, .score = 20, .letThrough = 18, .die = Die::win}, true},
      {"to the die", {.chance = 21, .score = 20, .letThrough = 18, .die = Die::lose}, false},
      {"20 does not", {.chance = 21, .score = 20, .letThrough = 19}, false},
      {"a stranger's break", {.chance = 0, .score = 0, .die = Die::breakFace}, true, 0},
      {"none for background", {.chance = 0, .score = 0, .die = Die::breakFace}, false, 0, 0},
      {"a strong bribe", {.chance = 30, .score = 0, .die = Die::lose}, true, 1, 1, 51},
      {"a weak one", {.chance = 30, .score = 0, .die = Die::lose}, false, 1, 1, 50},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    world.isSAG = each.isSAG;
    Audition project = submitted();
    project.isPrincipal = each.isPrincipal;
    project.didBribe = each.didBribe;
    scriptSubmission(each.draws);
    if (each.isInvited) {
      random.range(25, 0);
      expectInvited(live(project));
    } else {
      random.range(3, 0);
      expectSilence(live(project), funnel::submitted);
      EXPECT_EQ(agentsMood(), 0);
    }
  }
}

TEST_F(AuditionWeek, AnExtremeDifficultyStillDrawsFromARange) {
  world.showreelScore = 20;
  Audition project = submitted();
  project.didBribe = 99;
  project.auditionDifficulty = 200;
  random.range(201, 200).range(21, 0).range(200, 98).range(3, 0);  // 99 is not below 99
  expectSilence(live(project), funnel::submitted);
  project = submitted();
  project.auditionDifficulty = 0;
  random.range(1, 0).range(21, 0).range(3, 0).range(3, 2);
  expectSilence(live(project), funnel::submitted);
}

TEST_F(AuditionWeek, OneAnswerInThreeIsSilence) {
  const Draws refused = {.chance = 30, .score = 0, .letThrough = 20};
  scriptSubmission(refused).range(3, 1).range(25, 0);
  EXPECT_EQ(live(submitted()).funnelStage, funnel::closed);
  EXPECT_EQ(world.WeekFeed, (TextList{"You never heard back after applying for Saltwater."}));
  EXPECT_EQ(world.activityTracker, (TextList{"The trail went cold after you applied to Saltwater."}));
  EXPECT_EQ(agentsMood(), -1);

  Audition commercial = submitted();
  commercial.typeOfFilm = filmType::commercial;
  commercial.sourceId = 0;
  scriptSubmission(refused).range(3, 1).range(25, 0);
  live(commercial);
  EXPECT_EQ(world.WeekFeed, (TextList{"You never heard back after applying for a commercial."}));
  EXPECT_EQ(agentsMood(), 0);  // not from the agency
}

TEST_F(AuditionWeek, WithoutThePerformerAProjectIsCastWithoutADieOrAWord) {
  Audition financed = submitted();
  financed.didAct = 0;
  random.range(31, 30);
  expectSilence(live(financed), funnel::invited);
  EXPECT_EQ(agentsMood(), 2);
  Audition own = financed;  // is never invited
  own.isPrincipal = rolePart::ownProduction;
  random.range(31, 0);
  expectSilence(live(own), funnel::submitted);
  EXPECT_EQ(agentsMood(), 2);

  Audition commercial = financed;  // of which the performer hears all the same, if late
  commercial.typeOfFilm = filmType::commercial;
  commercial.weekAudition = 11;
  random.range(31, 30).range(25, 0);
  EXPECT_EQ(live(commercial).funnelStage, funnel::invited);
  EXPECT_EQ(world.WeekFeed, (TextList{"You were invited to audition for a commercial in 0 week(s)."}));
  EXPECT_DOUBLE_EQ(world.experience, 30.9 * 0.25);
}

TEST_F(AuditionWeek, WithoutThePerformerOnlyACommercialTellsOfItsOffer) {
  Audition project = invited();
  project.didAct = 0;
  scriptAudition({.chance = 30, .score = 0});
  expectSilence(live(project), funnel::booked);
  EXPECT_EQ(agentsMood(), 5);
  project.typeOfFilm = filmType::commercial;
  scriptAudition({.chance = 30, .score = 0});
  live(project);
  EXPECT_TRUE(world.WeekFeed.front().starts_with("You auditioned for a commercial and"));
  EXPECT_DOUBLE_EQ(world.experience, 30.9 / 3);
}

TEST_F(AuditionWeek, AnAuditionIsWonByTheRehearsalAndTheDie) {
  struct Case {
    Draws draws;
    bool isBooked;
    std::int64_t isSAG = 1;
  };
  const Case cases[] = {{{.chance = 25, .score = 25, .die = Die::win}, true},
                        {{.chance = 25, .score = 25, .die = Die::breakFace}, false},
                        {{.chance = 25, .score = 25, .die = Die::breakFace}, true, 0},
                        {{.chance = 26, .score = 25, .letThrough = 23, .die = Die::win}, true},
                        {{.chance = 26, .score = 25, .letThrough = 23, .die = Die::lose}, false},
                        {{.chance = 26, .score = 25, .letThrough = 24}, false}};
  for (const Case& each : cases) {
    world.isSAG = each.isSAG;
    scriptAudition(each.draws);
    EXPECT_EQ(live(invited()).funnelStage, each.isBooked ? funnel::booked : funnel::invited);
    ASSERT_EQ(world.WeekFeed.size(), 1u);
    EXPECT_TRUE(
        world.WeekFeed[0].ends_with(each.isBooked ? "begins in 9 week(s)." : "not selected for the role."));
    EXPECT_TRUE(world.activityTracker.empty());
    EXPECT_DOUBLE_EQ(world.experience, each.isBooked ? 30.9 / 3 : 0);
    EXPECT_EQ(agentsMood(), each.isBooked ? 5 : -2.5);
  }
}

TEST_F(AuditionWeek, TheWrapMakesAFilmAndIsToldByWhatThePerformerDidInIt) {
  struct Case {
    std::int64_t typeOfFilm;
    std::int64_t part;
    std::int64_t didAct;
    int draws;     // of the film
    double share;  // of the experience
    double experience;
    const char* told;
  };
  const Case cases[] = {
      {filmType::shortFilm, rolePart::principal, 1, 1, 0.5, 4, "You wrapped filming for Saltwater."},
      {filmType::series, rolePart::principal, 1, 3, 1, 8, "You wrapped filming for Saltwater Season 2."},
      {filmType::commercial, rolePart::principal, 0, 0, 1, 2, "You wrapped filming for a commercial."},
      {filmType::feature, rolePart::ownProduction, 0, 2, 0, 0,
       "Saltwater, a film you directed and produced."},
      {filmType::series, rolePart::ownProduction, 0, 3, 0, 0, "Pitch it to networks prior to release."},
  };
  for (const Case& each : cases) {
    world.saveAllFilmList = {{.filmId = 99}};
    Audition project = booked();
    project.typeOfFilm = each.typeOfFilm;
    project.isPrincipal = each.part;
    project.seasonNumber = each.typeOfFilm == filmType::series ? 2 : -1;
    project.didAct = each.didAct;
    random.any(each.draws);
    if (each.experience > 0) random.unit(each.share);
    EXPECT_EQ(live(project).funnelStage, funnel::wrapped);
    EXPECT_EQ(world.saveAllFilmList[0].filmId, 1);
    ASSERT_EQ(world.WeekFeed.size(), 1u);
    EXPECT_TRUE(world.WeekFeed[0].ends_with(each.told)) << world.WeekFeed[0];
    EXPECT_TRUE(world.activityTracker.empty());
    EXPECT_EQ(world.experience, each.experience);
    EXPECT_EQ(agentsMood(), 3);
  }
}

TEST_F(AuditionWeek, AnInvestmentThatWrapsStandsInBothLists) {
  Audition financed = booked();
  financed.didAct = 0;
  financed.equityPercentage = 35;
  random.range(21, 0).range(25, 0);
  live(financed);
  expectToldInBothLists(
      "Wrap! Filming has officially completed on Saltwater, and your 35% of it moves on to the editing "
      "room.");
  EXPECT_EQ(world.experience, 0);
}

TEST_F(AuditionWeek, ARecordThatMovedOnWaitsForTheNextWeek) {
  Audition project = submitted();
  project.weekAudition = 11;
  scriptSubmission({.chance = 0, .score = 0, .die = Die::win}).range(25, 0);
  live(project);
  world.weekNumberForTracking = 11;
  random.range(31, 0).range(1, 0).range(3, 1);
  resolveAuditionsForWeek(game);
  EXPECT_EQ(world.saveAllAuditionList[0].funnelStage, funnel::booked);
}

TEST_F(AuditionWeek, TheAgentHearsOfAllProjectsAtOnceAndOnlyTheSignedOne) {
  world.saveAllTalentAgents = {{.id = 5}, {.id = 77, .isSigned = 1}};
  world.saveAllAuditionList.assign(std::vector{invited(), invited(), booked()});
  scriptAudition({.chance = 0, .score = 0, .die = Die::win});
  scriptAudition({.chance = 0, .score = 0, .die = Die::lose}).range(21, 0).unit(0);
  resolveAuditionsForWeek(game);
  EXPECT_EQ(world.saveAllTalentAgents[1].relationship, 65 + 5 - 2.5 + 3);
  EXPECT_EQ(world.saveAllTalentAgents[0].relationship, 65);

  world.saveAllTalentAgents.clear();
  world.saveAllAuditionList.assign(std::vector{booked()});
  random.range(21, 0).unit(0);
  resolveAuditionsForWeek(game);  // nobody to tell
}

TEST_F(AuditionWeek, FansOfTitlesArePaidAgainEveryWeekThatHasAProject) {
  world.fanGainCarry = 100;
  resolveAuditionsForWeek(game);
  EXPECT_EQ(world.totalFans, 0);
  Audition closed = submitted();
  closed.funnelStage = funnel::closed;
  live(closed);
  live(closed);
  EXPECT_EQ(world.totalFans, 200);
  EXPECT_EQ(world.fanGainCarry, 100);
}

TEST_F(AuditionWeek, AReleaseBringsItsFansInTheSameWeek) {
  world.agentFanBonus = 1;
  Audition project = booked();
  project.funnelStage = funnel::wrapped;
  project.weekReleased = 10;
  project.budget = 400'000;
  world.saveAllFilmList.push_back({.filmId = 1, .typeOfFilm = filmType::shortFilm});
  // By a director of 0: scores and a review that are rolled anew, to a rating of 1 and the top of R(5, 10),
  // and how many gave them; then the fans at their top.
  random.any(5).unit(0).range(6, 5).any(2).unit(1);
  live(project);
  EXPECT_EQ(world.totalFans, 63);  // quality 10: a tenth of 1.05 x 600
  EXPECT_EQ(world.fanGainCarry, 63);
}

}  // namespace
}  // namespace tb
