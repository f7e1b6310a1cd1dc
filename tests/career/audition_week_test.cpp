#include "career/audition_week.h"

#include <gtest/gtest.h>

#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr int win = 2;
constexpr int breakFace = 3;
constexpr int lose = 1;

struct AuditionWeek : testing::Test, test::ScratchGame {
  WorldState& world = game.world;

  AuditionWeek() {
    world.weekNumberForTracking = 10;
    world.isSAG = 1;
    world.showreelScore = 20;
  }
  ~AuditionWeek() override { EXPECT_EQ(random.left(), 0u) << "draws that no rule took"; }

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
    project.funnelStage = stage::invited;
    project.weekAudition = 10;
    project.rehearsalRating = 25.9;
    return project;
  }
  Audition booked() {
    Audition project = submitted();
    project.funnelStage = stage::booked;
    project.weekToWork = 10;
    return project;
  }

  test::ScriptedRandom& chance(int value) { return random.range(31, value); }
  void die(int face) { random.range(3, face - 1); }

  // One week of this project alone.
  const Audition& live(const Audition& project) {
    world.saveAllAuditionList.assign(std::vector{project});
    world.saveAllTalentAgents.assign(std::vector<TalentAgent>{{.id = 5}, {.id = 77, .isSigned = 1}});
    world.WeekFeed.clear();
    world.activityTracker.clear();
    world.experience = 0;
    resolveAuditionsForWeek(game);
    return world.saveAllAuditionList[0];
  }
  double agentsMood() const { return world.saveAllTalentAgents[1].relationship - 65; }

  void expectInvited(const Audition& after) {
    EXPECT_EQ(after.funnelStage, stage::invited);
    EXPECT_EQ(agentsMood(), 2);
    EXPECT_EQ(world.WeekFeed, (TextList{"You were invited to audition for Saltwater in 3 week(s)."}));
    EXPECT_EQ(world.activityTracker,
              (TextList{"You secured an audition for Saltwater, giving you 3 week(s) to get ready."}));
    EXPECT_DOUBLE_EQ(world.experience, 30.9 * 0.25);
  }
  void expectNothingToldOf(const Audition& after, std::int64_t funnelStage) {
    EXPECT_EQ(after.funnelStage, funnelStage);
    EXPECT_TRUE(world.WeekFeed.empty());
    EXPECT_TRUE(world.activityTracker.empty());
    EXPECT_EQ(world.experience, 0);
  }
};

// --- Submitted ---

TEST_F(AuditionWeek, AnAuditionDateThatCameClosesTheSubmissionInSilence) {
  Audition project = submitted();
  project.weekAudition = 10;
  expectNothingToldOf(live(project), stage::closed);
  EXPECT_EQ(agentsMood(), 0);
}

TEST_F(AuditionWeek, AScoreThatMeetsTheChanceStillHasTheDieToWin) {
  chance(20).range(21, 20);
  die(win);
  random.range(25, 0);
  expectInvited(live(submitted()));

  chance(20).range(21, 20);
  die(breakFace);  // no break for a member
  random.range(3, 0);
  expectNothingToldOf(live(submitted()), stage::submitted);
  EXPECT_EQ(agentsMood(), 0);
}

TEST_F(AuditionWeek, AScoreBelowTheChanceMayBeLetThroughToTheDie) {
  chance(21).range(21, 20).range(21, 18);  // R(1, 21) gives 19, below the score
  die(win);
  random.range(25, 0);
  expectInvited(live(submitted()));

  chance(21).range(21, 20).range(21, 18);
  die(lose);
  random.range(3, 2);
  expectNothingToldOf(live(submitted()), stage::submitted);

  chance(21).range(21, 20).range(21, 19).range(3, 0);  // 20 is not below it: no die
  expectNothingToldOf(live(submitted()), stage::submitted);
}

TEST_F(AuditionWeek, OneAnswerInThreeIsSilence) {
  chance(30).range(21, 0).range(30, 0).range(3, 1).range(25, 0);
  const Audition& after = live(submitted());
  EXPECT_EQ(after.funnelStage, stage::closed);
  EXPECT_EQ(world.WeekFeed, (TextList{"You never heard back after applying for Saltwater."}));
  EXPECT_EQ(world.activityTracker, (TextList{"The trail went cold after you applied to Saltwater."}));
  EXPECT_EQ(agentsMood(), -1);

  Audition commercial = submitted();
  commercial.typeOfFilm = filmType::commercial;
  commercial.sourceId = 0;
  chance(30).range(21, 0).range(30, 0).range(3, 1).range(25, 0);
  live(commercial);
  EXPECT_EQ(world.WeekFeed, (TextList{"You never heard back after applying for a commercial."}));
  EXPECT_EQ(agentsMood(), 0);  // not from the agency
}

TEST_F(AuditionWeek, AStrangerToTheGuildIsGivenABreakForAPrincipalRoleAlone) {
  world.isSAG = 0;
  chance(0).range(21, 0);
  die(breakFace);
  random.range(25, 0);
  expectInvited(live(submitted()));

  Audition background = submitted();
  background.isPrincipal = 0;
  chance(0).range(21, 0);
  die(breakFace);
  random.range(3, 0);
  expectNothingToldOf(live(background), stage::submitted);
}

TEST_F(AuditionWeek, AStrongBribeSkipsTheDieOnlyWhereTheScoreMeetsTheChance) {
  Audition bribed = submitted();
  bribed.didBribe = 51;
  chance(30).range(21, 0);
  die(lose);
  random.range(25, 0);
  expectInvited(live(bribed));

  bribed.didBribe = 50;
  chance(30).range(21, 0);
  die(lose);
  random.range(3, 0);
  expectNothingToldOf(live(bribed), stage::submitted);

  bribed.didBribe = 99;
  bribed.auditionDifficulty = 200;
  random.range(201, 200).range(21, 0).range(200, 98);  // 99 is not below 99
  random.range(3, 0);
  expectNothingToldOf(live(bribed), stage::submitted);
}

TEST_F(AuditionWeek, NoDifficultyLeavesTheDieAlone) {
  Audition easy = submitted();
  easy.auditionDifficulty = 0;
  random.range(1, 0).range(21, 0);
  die(lose);
  random.range(3, 0);
  expectNothingToldOf(live(easy), stage::submitted);
}

TEST_F(AuditionWeek, ALateInvitationLeavesNoWeekToGetReady) {
  Audition late = submitted();
  late.weekAudition = 11;
  chance(0).range(21, 0);
  die(win);
  random.range(25, 0);
  live(late);
  EXPECT_EQ(world.WeekFeed, (TextList{"You were invited to audition for Saltwater in 0 week(s)."}));
}

TEST_F(AuditionWeek, WithoutThePerformerAProjectIsCastWithoutADieOrAWord) {
  Audition financed = submitted();
  financed.didAct = 0;
  chance(30);
  expectNothingToldOf(live(financed), stage::invited);
  EXPECT_EQ(agentsMood(), 2);

  financed.typeOfFilm = filmType::commercial;  // of which the performer hears all the same
  chance(30).range(25, 0);
  EXPECT_EQ(live(financed).funnelStage, stage::invited);
  EXPECT_EQ(world.WeekFeed, (TextList{"You were invited to audition for a commercial in 3 week(s)."}));
  EXPECT_DOUBLE_EQ(world.experience, 30.9 * 0.25);
}

TEST_F(AuditionWeek, AnOwnProductionIsNeverInvited) {
  Audition own = submitted();
  own.isPrincipal = rolePart::ownProduction;
  own.didAct = 0;
  chance(0);
  expectNothingToldOf(live(own), stage::submitted);
  EXPECT_EQ(agentsMood(), 2);
}

// --- Invited ---

TEST_F(AuditionWeek, AnInvitationWaitsForItsWeekAndARejectedOneForEver) {
  Audition project = invited();
  project.weekAudition = 11;
  expectNothingToldOf(live(project), stage::invited);
  project.weekAudition = 9;
  expectNothingToldOf(live(project), stage::invited);
}

TEST_F(AuditionWeek, TheBestRehearsalStillHasTheDieToWin) {
  chance(25).range(26, 25);
  die(win);
  EXPECT_EQ(live(invited()).funnelStage, stage::booked);
  EXPECT_EQ(world.WeekFeed, (TextList{"You auditioned for Saltwater and the cast director offered you the role. "
                                      "Shooting begins in 9 week(s)."}));
  EXPECT_TRUE(world.activityTracker.empty());
  EXPECT_DOUBLE_EQ(world.experience, 30.9 / 3);
  EXPECT_EQ(agentsMood(), 5);

  chance(25).range(26, 25);
  die(breakFace);
  EXPECT_EQ(live(invited()).funnelStage, stage::invited);
  EXPECT_EQ(world.WeekFeed, (TextList{"You auditioned for Saltwater but you were not selected for the role."}));
  EXPECT_EQ(world.experience, 0);
  EXPECT_EQ(agentsMood(), -2.5);
  EXPECT_TRUE(world.activityTracker.empty());

  world.isSAG = 0;
  chance(25).range(26, 25);
  die(breakFace);
  EXPECT_EQ(live(invited()).funnelStage, stage::booked);
}

TEST_F(AuditionWeek, AWeakRehearsalMayBeLetThroughToTheDie) {
  chance(26).range(26, 25).range(26, 23);  // 24 is below 25
  die(win);
  EXPECT_EQ(live(invited()).funnelStage, stage::booked);
  chance(26).range(26, 25).range(26, 23);
  die(lose);
  EXPECT_EQ(live(invited()).funnelStage, stage::invited);
  chance(26).range(26, 25).range(26, 24);  // 25 is not
  EXPECT_EQ(live(invited()).funnelStage, stage::invited);
  EXPECT_EQ(agentsMood(), -2.5);
}

TEST_F(AuditionWeek, ACommercialIsNeverSpokenOfByItsTitle) {
  Audition commercial = invited();
  commercial.typeOfFilm = filmType::commercial;
  commercial.didAct = 0;
  chance(30).range(26, 0);
  EXPECT_EQ(live(commercial).funnelStage, stage::booked);
  EXPECT_EQ(world.WeekFeed, (TextList{"You auditioned for a commercial and the cast director offered you the role. "
                                      "Shooting begins in 9 week(s)."}));
  EXPECT_DOUBLE_EQ(world.experience, 30.9 / 3);
  commercial.didAct = 1;
  chance(30).range(26, 0).range(30, 29);
  live(commercial);
  EXPECT_EQ(world.WeekFeed, (TextList{"You auditioned for a commercial but you were not selected for the role."}));
}

TEST_F(AuditionWeek, WithoutThePerformerAProjectIsOfferedWithoutAWord) {
  Audition financed = invited();
  financed.didAct = 0;
  chance(30).range(26, 0);
  expectNothingToldOf(live(financed), stage::booked);
  EXPECT_EQ(agentsMood(), 5);
}

// --- Booked ---

TEST_F(AuditionWeek, ABookingWaitsForItsWeek) {
  Audition project = booked();
  project.weekToWork = 11;
  expectNothingToldOf(live(project), stage::booked);
  EXPECT_TRUE(world.saveAllFilmList.empty());
}

TEST_F(AuditionWeek, TheWrapMakesAFilmAndGivesExperience) {
  world.saveAllFilmList.push_back({.filmId = 99});
  random.range(21, 20).unit(0.5);
  EXPECT_EQ(live(booked()).funnelStage, stage::wrapped);
  ASSERT_EQ(world.saveAllFilmList.size(), 2u);
  EXPECT_EQ(world.saveAllFilmList[0].filmId, 1);
  EXPECT_EQ(world.saveAllFilmList[0].lengthMinutes, 40);
  EXPECT_EQ(world.WeekFeed, (TextList{"You wrapped filming for Saltwater."}));
  EXPECT_TRUE(world.activityTracker.empty());
  EXPECT_EQ(world.experience, 4);
  EXPECT_EQ(agentsMood(), 3);
  EXPECT_TRUE(store.contains("saveAllFilmList"));

  Audition season = booked();
  season.typeOfFilm = filmType::series;
  season.seasonNumber = 2;
  random.any(3).unit(1);
  live(season);
  EXPECT_EQ(world.WeekFeed, (TextList{"You wrapped filming for Saltwater Season 2."}));
  EXPECT_EQ(world.experience, 8);

  Audition commercial = booked();
  commercial.typeOfFilm = filmType::commercial;
  commercial.didAct = 0;
  random.unit(1);
  live(commercial);
  EXPECT_EQ(world.WeekFeed, (TextList{"You wrapped filming for a commercial."}));
  EXPECT_EQ(world.experience, 2);
}

TEST_F(AuditionWeek, AnOwnProductionIsPitchedUnlessItIsAFeature) {
  Audition own = booked();
  own.isPrincipal = rolePart::ownProduction;
  own.didAct = 0;
  own.typeOfFilm = filmType::feature;
  random.any(2);
  live(own);
  EXPECT_EQ(world.WeekFeed, (TextList{"Filming wrapped for Saltwater, a film you directed and produced."}));
  own.typeOfFilm = filmType::series;
  random.any(3);
  live(own);
  EXPECT_EQ(world.WeekFeed, (TextList{"Filming wrapped for Saltwater, a TV-Series you directed and produced. Pitch it "
                                      "to networks prior to release."}));
  EXPECT_TRUE(world.activityTracker.empty());
  EXPECT_EQ(world.experience, 0);
}

TEST_F(AuditionWeek, AnInvestmentThatWrapsStandsInBothLists) {
  Audition financed = booked();
  financed.didAct = 0;
  financed.equityPercentage = 35;
  random.range(21, 0).range(25, 0);
  live(financed);
  const TextList line = {
      "Wrap! Filming has officially completed on Saltwater, and your 35% of it moves on to the editing room."};
  EXPECT_EQ(world.WeekFeed, line);
  EXPECT_EQ(world.activityTracker, line);
  EXPECT_EQ(world.experience, 0);
}

// --- The pass ---

TEST_F(AuditionWeek, ARecordThatMovedOnWaitsForTheNextWeek) {
  Audition project = submitted();
  project.weekAudition = 11;
  chance(0).range(21, 0);
  die(win);
  random.range(25, 0);
  live(project);
  world.weekNumberForTracking = 11;
  chance(0).range(1, 0);
  die(win);
  resolveAuditionsForWeek(game);
  EXPECT_EQ(world.saveAllAuditionList[0].funnelStage, stage::booked);
}

TEST_F(AuditionWeek, TheAgentHearsOfAllProjectsAtOnceAndOnlyTheSignedOne) {
  world.saveAllTalentAgents.assign(std::vector<TalentAgent>{{.id = 5}, {.id = 77, .isSigned = 1}});
  world.saveAllAuditionList.assign(std::vector{invited(), invited(), booked()});
  chance(0).range(26, 0);
  die(win);
  chance(0).range(26, 0);
  die(lose);
  random.range(21, 0).unit(0);
  resolveAuditionsForWeek(game);
  EXPECT_EQ(world.saveAllTalentAgents[1].relationship, 65 + 5 - 2.5 + 3);
  EXPECT_EQ(world.saveAllTalentAgents[0].relationship, 65);
  EXPECT_TRUE(store.contains("saveAllTalentAgents"));

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
  closed.funnelStage = stage::closed;
  live(closed);
  live(closed);
  EXPECT_EQ(world.totalFans, 200);
  EXPECT_EQ(world.fanGainCarry, 100);
  EXPECT_EQ(store.value("totalFans"), plist::Value{std::int64_t{200}});
}

TEST_F(AuditionWeek, AReleaseBringsItsFansInTheSameWeek) {
  world.agentFanBonus = 1;
  Audition project = booked();
  project.funnelStage = stage::wrapped;
  project.weekReleased = 10;
  project.budget = 400'000;
  world.saveAllFilmList.push_back({.filmId = 1, .typeOfFilm = filmType::shortFilm});
  // By a director of 0: scores and a review that are rolled anew, to a rating of 1 and the top of R(5, 10), and
  // how many gave them; then the fans at their top.
  random.any(5).unit(0).range(6, 5).any(2).unit(1);
  live(project);
  EXPECT_EQ(world.saveAllFilmList[0].imbdRating, 1);
  EXPECT_EQ(world.saveAllFilmList[0].imbdMetascore, 10);
  EXPECT_EQ(world.totalFans, 63);  // quality 10: a tenth of 1.05 x 600
  EXPECT_EQ(world.fanGainCarry, 63);
}

}  // namespace
}  // namespace tb
