// The money of a year on the screens: a temp job, sessions, a commercial's residuals, an own production, the
// guild, and weekly bills.

#include <format>
#include <gtest/gtest.h>
#include <numeric>

#include "core/number_style.h"
#include "tests/journeys/books.h"
#include "tests/journeys/device.h"
#include "wealth/net_worth.h"

namespace tb {
namespace {

constexpr double startingCash = 4000;

void bookThreeProjects(WorldState& world) {
  world.totalCashAvailable = startingCash;
  Audition film = test::bookedLead(1, filmType::feature, "Salt Road");
  film.buyout = 500;
  Audition commercial = test::bookedLead(2, filmType::commercial, "Fizz");
  commercial.payment = 1000;
  commercial.royalty = 0;
  commercial.residual = 0.05;
  Audition own = test::ownProduction(3, "Own Goal");
  own.weekToWork = 5;
  own.weekReleased = 20;
  for (Audition project : {film, commercial, own}) {
    project.budget = 2e6;
    project.directorRating = 60;
    world.saveAllAuditionList.push_back(std::move(project));
  }
}

// Opens the board until it has an offer, and accepts it.
void acceptAJob(test::Device& device) {
  for (int look = 0; look < 50 && device.world().weeklyJobTitle.empty(); ++look) {
    device.player().follow({"Work", "Job Board"});
    if (!device.player().sees("NO JOBS AVAILABLE")) device.player().press("Accept");
    device.player().press("Back");
  }
  ASSERT_FALSE(device.world().weeklyJobTitle.empty());
}

// Opens a page of the wealth tab, which updates the net worth, checks its texts, and leaves it.
void readWealth(test::Device& device, const std::string& page, std::initializer_list<std::string> texts) {
  device.player().press("Wealth");
  EXPECT_EQ(device.world().saveNetworth, netWorth(device.world()).total());
  device.player().press(page);
  device.player().expectSees(texts);
  device.player().press("Back");
}

// Ends a week and compares the summary with the books to the cent.
void endWeek(test::Device& device, test::Books& books, const std::string& bills) {
  const double before = device.world().totalCashAvailable;
  const double tracked = books.balance();
  device.endWeek();
  books.addTheWeek(device.world());
  ASSERT_NEAR(device.world().totalCashAvailable - before, books.balance() - tracked, 1e-6);
  device.player().expectSees({"INCOME • EXPENSES", bills});
}

TEST(MoneyYearJourney, SummariesRecordsAndCashAgree) {
  test::SeededRandom random{31};
  test::Device device(random);
  device.begin(bookThreeProjects);
  readWealth(device, "Finances", {"You do not have a job right now.", "You have not earned any income"});
  acceptAJob(device);

  test::Books books;
  for (int week = 1; week <= 52; ++week) {
    SCOPED_TRACE(week);
    if (week == 10) {
      device.launch();
      device.player().follow({"The Backstage", "Actor's Guild", "Join", "Back", "Back"});
      ASSERT_EQ(device.world().isSAG, 1);
    }
    endWeek(device, books, week < 10 ? " | $50" : " | $70");
    if (week == 1) device.player().expectSees({"SESSIONS", "$10K"});
    if (week == 6) device.player().expectSees({"RESIDUALS"});
    device.player().press("Close");
    if (week > 1) continue;
    readWealth(device, "Finances", {"Weeks left", "Pay this year"});
  }

  const WorldState& world = device.world();
  EXPECT_EQ(world.yearNumber, 2027);
  EXPECT_NEAR(world.totalCashAvailable, startingCash - 3000 + books.balance(), 0.005);
  const double net = std::accumulate(world.saveWeeklyEarnings.begin(), world.saveWeeklyEarnings.end(), 0.0);
  EXPECT_NEAR(net, books.records + books.jobs, 0.005);  // excludes residuals and bills
  const auto checks = std::ranges::count_if(
      world.activityTracker, [](const std::string& line) { return line.contains("residual check"); });
  EXPECT_EQ(checks, 12);
  EXPECT_NEAR(world.saveLastYTDPaycheck, books.jobs, 0.005);
  EXPECT_EQ(world.yearToDatePaycheck, 0);
}

}  // namespace
}  // namespace tb
