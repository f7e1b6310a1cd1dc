#include <cmath>
#include <gtest/gtest.h>

#include "film/catalogue.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

// From the casting board to the release.
struct FirstRolesJourney : testing::Test {
  test::ScriptedRandom chance{test::Unscripted::low};
  test::Device device{chance};

  // Submits for the first feature film of the casting network, in a background part, and returns its title.
  std::string submit() {
    const auto row = std::ranges::find(movies(), filmType::feature, &Movie::type);
    device.player().press("The Backstage");
    chance.any(1)
        .range(2, rolePart::background)
        .range(2, 1)
        .range(std::ssize(movies()), row - movies().begin());
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
  void bookAndWrap(const std::string& title) {
    playWeekExpecting("You were invited to audition for " + title + " in 1 week(s).", true);
    openProject(title);
    device.player().press("REHEARSE");
    backToHub();
    device.playWeeks();
    playWeekExpecting("You auditioned for " + title +
                          " and the cast director offered you the role. Shooting begins in 3 week(s).",
                      true);
    device.playWeeks(3);
    playWeekExpecting("You wrapped filming for " + title + ".");
  }
};

TEST_F(FirstRolesJourney, ANewcomersFirstFilmOpensRunsAndCloses) {
  device.begin([](WorldState&) {});
  test::Player& player = device.player();
  player.press("Work");
  chance.any(26).range(6, 1);
  player.follow({"Job Board", "Accept", "Accept"});
  player.expectTold("⏳ Contract Signed ⏳");
  EXPECT_EQ(device.world().weeklyJobTitle, "Background Extra");
  backToHub();

  const std::string title = submit();
  EXPECT_EQ(device.world().totalEnergyAvailable, 80);
  bookAndWrap(title);
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

}  // namespace
}  // namespace tb
