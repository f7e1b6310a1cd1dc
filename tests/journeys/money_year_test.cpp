// A working performer's first year of money, as the screens tell it: a temp job, sessions, the checks of a
// commercial, an own production, the guild, and bills every week.

#include <cmath>
#include <format>
#include <gtest/gtest.h>
#include <numeric>

#include "core/number_style.h"
#include "core/save.h"
#include "tests/journeys/booked_performer.h"
#include "tests/journeys/books.h"
#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

constexpr double startingCash = 4000;

Audition booked(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title, double payment) {
  Audition project = test::bookedLead(filmId, typeOfFilm, title);
  project.payment = payment;
  project.royalty = 0;
  project.budget = 2e6;
  project.directorRating = 60;
  return project;
}

struct Career {
  Career() {
    SaveStore store(port);
    Game game{.store = store, .random = random};
    game.world.myName = "Ada Quinn";
    game.world.enterPlayerDetails = 1;
    game.world.totalCashAvailable = startingCash;
    Audition film = booked(1, filmType::feature, "Salt Road", 9000);
    film.royalty = 2;
    film.buyout = 500;
    Audition commercial = booked(2, filmType::commercial, "Fizz", 1000);
    commercial.residual = 0.05;
    Audition own = booked(3, filmType::feature, "Own Goal", 2000);
    own.isPrincipal = rolePart::ownProduction;
    own.didAct = 0;
    own.equityPercentage = 10;
    own.weekToWork = 5;
    own.weekReleased = 20;
    for (const Audition& project : {film, commercial, own}) game.world.saveAllAuditionList.push_back(project);
    save<&WorldState::myName, &WorldState::enterPlayerDetails, &WorldState::totalCashAvailable,
         &WorldState::saveAllAuditionList>(game);
    EXPECT_TRUE(store.commit());
  }
  test::MemoryPort port;
  test::SeededRandom random{31};
};

struct Running {
  explicit Running(Career& career) : store(career.port), app(store, career.random) {}

  [[nodiscard]] const WorldState& world() const { return app.game().world; }

  void open(const std::string& tab, const std::string& row) {
    player.press(tab);
    player.press(row);
  }

  // Looks in at the board until there is an offer on it.
  void takeAJob() {
    for (int look = 0; look < 50 && world().weeklyJobTitle.empty(); ++look) {
      open("Work", "Job Board");
      if (!player.sees("NO JOBS AVAILABLE")) player.press("Accept");
      player.press("Back");
    }
    ASSERT_FALSE(world().weeklyJobTitle.empty());
  }

  SaveStore store;
  App app;
  test::Player player{app};
};

TEST(MoneyYear, EveryDollarOfAYearIsOnTheSummaryInTheBooksAndInTheCash) {
  Career career;
  auto game = std::make_unique<Running>(career);
  game->open("Wealth", "Finances");
  EXPECT_TRUE(
      game->player.sees("You do not have a job right now. Find a temp job to start paying your bills"));
  EXPECT_TRUE(game->player.sees("You have not earned any income this year."));
  game->player.press("Back");
  game->takeAJob();

  test::Books books;
  for (int week = 1; week <= 52; ++week) {
    if (week == 10) {
      game.reset();
      game = std::make_unique<Running>(career);
      game->player.press("The Backstage");
      game->player.press("Actor's Guild");
      game->player.press("Join");
      ASSERT_EQ(game->world().isSAG, 1);
      game->player.press("Back");
      game->player.press("Back");
    }
    const double before = game->world().totalCashAvailable;
    const double tracked = books.balance();
    game->player.press("Home");
    game->player.press("End Week");
    books.addTheWeek(game->world());
    ASSERT_NEAR(game->world().totalCashAvailable - before, books.balance() - tracked, 1e-6)
        << "week " << week;
    EXPECT_TRUE(game->player.sees("INCOME • EXPENSES"));
    EXPECT_TRUE(game->player.sees(week < 10 ? " | $50" : " | $70"));
    if (week == 1) {
      EXPECT_TRUE(game->player.sees("SESSIONS"));
      EXPECT_TRUE(game->player.sees("$10K"));
    }
    if (week == 6) EXPECT_TRUE(game->player.sees("RESIDUALS"));
    game->player.press("Close");
    if (week > 1) continue;
    game->open("Wealth", "Finances");
    EXPECT_TRUE(game->player.sees("Weeks left"));
    EXPECT_TRUE(game->player.sees("Pay this year"));
    EXPECT_FALSE(game->player.sees("against last year"));
    game->player.press("Back");
  }

  const WorldState& world = game->world();
  EXPECT_EQ(world.yearNumber, 2027);
  EXPECT_NEAR(world.totalCashAvailable, startingCash - 3000 + books.balance(), 0.005);
  const double net = std::accumulate(world.saveWeeklyEarnings.begin(), world.saveWeeklyEarnings.end(), 0.0);
  EXPECT_NEAR(net, books.records + books.jobs, 0.005);  // residuals and bills are no part of it
  const auto checks = std::ranges::count_if(
      world.saveAllWeeklyEarnings, [](const WeeklyEarnings& line) { return line.residualsEarned > 0; });
  EXPECT_EQ(checks, 12);
  EXPECT_NEAR(world.saveLastYTDPaycheck, books.jobs, 0.005);
  EXPECT_EQ(world.yearToDatePaycheck, 0);
  EXPECT_EQ(std::ranges::count_if(world.activityTracker,
                                  [](const std::string& line) { return line.contains("residual check"); }),
            12);

  game->open("Wealth", "Finances");
  EXPECT_TRUE(game->player.sees("Net income by week"));
  EXPECT_TRUE(game->player.sees("Paid by your titles, year by year"));
  EXPECT_NEAR(world.saveNetworth, world.totalCashAvailable, 1e-6);
  game->player.press("Back");
  game->open("Wealth", "Balance Sheet");
  EXPECT_TRUE(game->player.sees(cash({}, world.totalCashAvailable)));
  game->player.press("Back");
  game->open("Wealth", "Weekly Expenses");
  EXPECT_TRUE(game->player.sees("Basic Needs"));
  EXPECT_TRUE(game->player.sees("AG Monthly Dues"));
  EXPECT_TRUE(game->player.sees("$3,640"));
  game->player.press("Back");
  game->open("Wealth", "Payments");
  EXPECT_TRUE(game->player.sees("No such payment in this year."));
  game->player.press("Earlier");
  EXPECT_TRUE(game->player.sees("Salt Road"));
  EXPECT_TRUE(game->player.sees("Own Goal"));
  game->player.press("Residuals");
  EXPECT_TRUE(game->player.sees("Fizz"));
  EXPECT_FALSE(game->player.sees("Salt Road"));
  EXPECT_TRUE(game->player.sees("Week 50 • Residual"));
  game->player.press("Back");

  game->takeAJob();
  game->player.press("Home");
  game->player.press("End Week");
  game->player.press("Close");
  game->open("Wealth", "Finances");
  EXPECT_TRUE(game->player.sees("Pay last year"));
  const double change = (world.yearToDatePaycheck - world.saveLastYTDPaycheck) / world.saveLastYTDPaycheck;
  EXPECT_TRUE(game->player.sees(std::format("{:.1f}% against last year", change * 100)));
}

}  // namespace
}  // namespace tb
