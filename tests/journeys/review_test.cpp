// The weekly review: front page, scene, and the screens its lines open.

#include <gtest/gtest.h>

#include "tests/journeys/device.h"

namespace tb {
namespace {

using test::Player;

struct WeekReviewJourney : testing::Test {
  test::ScriptedRandom chance{test::Unscripted::low};
  test::Device device{chance};

  static Audition submitted(std::int64_t filmId, const std::string& title) {
    Audition project = test::bookedLead(filmId, filmType::feature, title);
    project.imageString = "poster" + std::to_string(filmId);
    project.weekAudition = 9;
    project.weekToWork = 12;
    project.weekReleased = 20;
    project.funnelStage = funnel::submitted;
    return project;
  }
  void begin(const std::vector<Audition>& projects) {
    device.begin([&](WorldState& world) {
      for (const Audition& project : projects) world.saveAllAuditionList.push_back(project);
    });
  }
  // Ends the weeks up to the release of a booked lead.
  void playARelease(std::int64_t typeOfFilm) {
    Audition project = test::bookedLead(1, typeOfFilm, "Two Hats");
    project.weekReleased = 2;
    begin({project});
    device.playWeeks();
    device.endWeek();
  }
};

TEST_F(WeekReviewJourney, TheFirstBookingIsAMoment) {
  Audition project = submitted(1, "Two Hats");
  project.funnelStage = funnel::invited;
  project.weekAudition = 1;
  begin({project, submitted(2, "Salt Road")});
  Player& player = device.player();
  chance.any(2).range(3, 1);  // wins the role
  chance.any(3).range(3, 1);  // no answer for the other one
  device.endWeek();

  const std::string booked =
      "You auditioned for Two Hats and the cast director offered you the role. Shooting begins in 10 "
      "week(s).";
  player.expectSees({"<deal> | BOOKED | Two Hats • Lead",
                     "[BOOKED | " + booked + " | Lead • Feature Film | <good> | <isLead>]",
                     "<poster> | poster1",
                     "[NO ANSWER | You never heard back after applying for Salt Road. | <quiet>]", "FEED",
                     "Net of the week"});

  // The headline opens the project, and Back shows the same page without the scene.
  player.press(booked);
  EXPECT_EQ(player.title(), "Two Hats");
  EXPECT_TRUE(player.page().moment.empty());
  player.press("Back");
  EXPECT_EQ(player.title(), "REVIEW");
  EXPECT_TRUE(player.page().moment.empty());
  player.expectSees({"BOOKED"});
}

TEST_F(WeekReviewJourney, FoldedRowsOpenAndClose) {
  begin({submitted(1, "Two Hats"), submitted(2, "Salt Road")});
  Player& player = device.player();
  for (int project = 0; project < 2; ++project) chance.any(3).range(3, 1).any(1);
  device.endWeek();
  const std::string line = "You never heard back after applying for Salt Road.";
  player.expectSees({"FEED", "2 never wrote back"});
  EXPECT_FALSE(player.sees(line));
  EXPECT_TRUE(player.page().moment.empty());
  player.press("2 never wrote back");
  player.expectSees({line});
  player.press(line);
  EXPECT_EQ(player.title(), "Salt Road");
  player.press("Back");
  player.expectSees({line});  // unchanged
  player.press("2 never wrote back");
  EXPECT_FALSE(player.sees(line));
}

TEST_F(WeekReviewJourney, TheFirstOpeningIsAMoment) {
  playARelease(filmType::studentFilm);
  ASSERT_EQ(device.player().page().moment.size(), 1u);
  EXPECT_EQ(device.player().page().moment[0].title, "OPENS");
  device.player().expectSees({"Two Hats had its first screening.", "New Release"});
}

TEST_F(WeekReviewJourney, TheFirstPremiereIsAMoment) {
  playARelease(filmType::series);
  ASSERT_EQ(device.player().page().moment.size(), 1u);
  EXPECT_EQ(device.player().page().moment[0].title, "PREMIERE");
  EXPECT_EQ(device.player().page().moment[0].line, "Two Hats");
  device.player().expectSees({"PREMIERE", "New Release"});
}

TEST_F(WeekReviewJourney, JoiningTheGuildIsAMomentAndARefusalIsNot) {
  device.begin([](WorldState& world) { world.totalCashAvailable = 0; });
  device.player().follow({"The Backstage", "Actor's Guild", "Join"});
  EXPECT_TRUE(device.player().page().moment.empty());
  device.begin([](WorldState& world) {
    world.totalCashAvailable = 10'000;
    for (std::int64_t id : {1, 2}) {
      world.saveAllAuditionList.push_back(test::bookedLead(id, filmType::feature, "Two Hats"));
    }
  });
  device.player().follow({"The Backstage", "Actor's Guild", "Join"});
  ASSERT_EQ(device.player().page().moment.size(), 1u);
  EXPECT_EQ(device.player().page().moment[0].title, "MEMBER");
}

}  // namespace
}  // namespace tb
