#include <cmath>
#include <gtest/gtest.h>

#include "career/traits.h"
#include "core/number_style.h"
#include "film/catalogue.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

// From the casting board to the release.
struct FirstRolesJourney : testing::Test {
  test::ScriptedRandom chance{test::Unscripted::low};
  test::Device device{chance};

  void start(std::int64_t isSAG, std::int64_t talent) {
    device.begin([&](WorldState& world) {
      world.isSAG = isSAG;
      for (const Trait& trait : traits) world.*trait.points = talent;
    });
  }

  // Submits for the first project of that type on the casting network and returns its title.
  std::string submitFor(std::int64_t part, std::int64_t typeOfFilm) {
    const auto row = std::ranges::find(movies(), typeOfFilm, &Movie::type);
    device.player().press("The Backstage");
    chance.any(1).range(2, part).range(2, 1).range(std::ssize(movies()), row - movies().begin());
    device.player().follow({"Casting Network", "Submit"});
    EXPECT_EQ(device.player().said(), "Showreel sent to " + row->title);
    device.player().follow({"Back", "Back"});
    return row->title;
  }

  // Plays a week and expects the line. If `isLucky`, the open project's roll wins.
  void playWeekExpecting(const std::string& line, bool isLucky = false) {
    if (isLucky) chance.any(2).range(3, 1);
    const auto told = device.playWeeks();
    EXPECT_TRUE(std::ranges::any_of(told, [&](const std::string& words) { return words.contains(line); }))
        << line << " in " << testing::PrintToString(told);
  }

  void openProject(const std::string& title) { device.player().follow({"Work", "Auditions", title}); }
  void backToHub() {
    while (device.player().title() != "Ada Quinn") device.player().press("Back");
  }

  // From submission to wrap: the audition after two weeks, the wrap four weeks later.
  void bookAndWrap(const std::string& spokenOf, const std::string& title) {
    playWeekExpecting("You were invited to audition for " + spokenOf + " in 1 week(s).", true);
    openProject(title);
    device.player().press("REHEARSE");
    backToHub();
    device.playWeeks();
    playWeekExpecting("You auditioned for " + spokenOf +
                          " and the cast director offered you the role. Shooting begins in 3 week(s).",
                      true);
    device.playWeeks(3);
    playWeekExpecting("You wrapped filming for " + spokenOf + ".");
  }
};

TEST_F(FirstRolesJourney, ANewcomersFirstFilmOpensRunsAndCloses) {
  start(0, 1);
  test::Player& player = device.player();
  player.press("Work");
  chance.any(26).range(6, 1);
  player.follow({"Job Board", "Accept", "Accept"});
  player.expectTold("⏳ Contract Signed ⏳");
  EXPECT_EQ(device.world().weeklyJobTitle, "Background Extra");
  backToHub();

  const std::string title = submitFor(rolePart::background, filmType::feature);
  EXPECT_EQ(device.world().totalEnergyAvailable, 80);
  bookAndWrap(title, title);
  EXPECT_EQ(device.project().rehearsalBoostCount, 1);

  device.playWeeks(8);  // the release, eight weeks after the wrap
  const double opening = std::pow(3, 0.01) * 100'000 * 0.03 * 0.98;
  ASSERT_EQ(device.world().saveAllBoxOfficeList.size(), 1u);
  EXPECT_NEAR(device.world().saveAllBoxOfficeList[0].openingWeekend, opening, 1e-6);
  // With rating 1 and metascore 5 the popularity is a tenth of the hype of 1 and falls to 0 at once.
  const std::int64_t id = device.project().filmId;
  EXPECT_NEAR(device.film(id).lastWeekPopularity, 0.1, 1e-9);
  EXPECT_NEAR(device.film(id).currentPopularity, 0, 1e-9);
  device.playWeeks(7);
  EXPECT_NEAR(device.film(id).boxOfficeGross, opening * (1 + 0.5 * 2.1), 1e-6);  // closed in the same week
  openProject(title);
  player.expectSees({"BOX OFFICE GROSS: $6.1K", "OPENING WEEKEND: $3.0K", "BUDGET: $100K", "RETURN: 6%"});
}

TEST_F(FirstRolesJourney, StudentFilmsAndCommercialsHaveNoBoxOffice) {
  start(0, 1);
  const std::string title = submitFor(rolePart::principal, filmType::studentFilm);
  bookAndWrap(title, title);
  bookAndWrap("a commercial", submitFor(rolePart::principal, filmType::commercial));
  device.playWeeks(9);
  for (const std::size_t index : {0u, 1u}) {
    EXPECT_GT(device.film(device.project(index).filmId).imbdRating, 0);
  }
  EXPECT_TRUE(device.world().saveAllBoxOfficeList.empty() && device.world().saveAllRatings.empty());
  openProject(title);
  device.player().expectSees({"RECEPTION"});
  EXPECT_FALSE(device.player().sees("RETURN"));
}

TEST_F(FirstRolesJourney, AMembersSeriesIsRenewed) {
  start(1, 80);
  test::Player& player = device.player();
  const std::string title = submitFor(rolePart::principal, filmType::series);
  EXPECT_EQ(device.project().role, "Recurring");
  EXPECT_EQ(device.project().payment, 1282);
  bookAndWrap(title, title);

  openProject(title);
  player.press("PROMOTE");
  EXPECT_EQ(device.world().totalEnergyAvailable, 75);
  player.type("Your answer", "I did all my own crying.");
  player.press("Post");
  EXPECT_EQ(device.project().promoteHypeCount, 1);
  EXPECT_FALSE(player.sees("PROMOTE"));
  backToHub();

  // The premiere: director 67 and level 80 give a hype of 49; the rating is the highest for that director.
  device.playWeeks(7);
  chance.any(5).unit(1);
  device.playWeeks();
  EXPECT_EQ(device.film(device.project().filmId).imbdRating, 6);
  const double premiere = std::pow(3, 0.49) * 100'000 * 0.05;
  ASSERT_EQ(device.world().saveAllRatings.size(), 1u);
  EXPECT_NEAR(device.world().saveAllRatings[0].premiereViews[0], premiere, 1e-6);
  device.playWeeks(9);
  EXPECT_EQ(device.world().saveAllRatings[0].premiereViews.size(), 8u);

  // The verdict in week 11: rating 6 is above the low draw.
  playWeekExpecting(title + " has been renewed for season 2!");
  ASSERT_EQ(device.world().saveAllAuditionList.size(), 2u);
  EXPECT_EQ(device.project(1).funnelStage, funnel::booked);
  EXPECT_NEAR(device.project(1).budget, 110'000, 1e-6);
  EXPECT_NEAR(device.project(1).payment, 1282 * 0.8, 1e-6);
  openProject(title + " Season 2");
  player.press("WORK ON YOUR PERFORMANCE");
  EXPECT_EQ(device.project(1).performanceBoostCount, 1);
  backToHub();
  device.playWeeks(6);
  playWeekExpecting("You wrapped filming for " + title + " Season 2.");
  device.playWeeks(8);
  EXPECT_EQ(device.world().saveAllRatings.size(), 2u);

  openProject(title + " Season 2");
  player.expectSees({"TOTAL GROSS"});
  player.press(title);  // the earlier season
  player.expectSees({"PREMIERE: " + shortCount(static_cast<std::int64_t>(premiere))});
}

}  // namespace
}  // namespace tb
