// The life of two titles as their lead sees it: wrapped, promoted, released, shown and over.

#include <gtest/gtest.h>
#include <numeric>

#include "tests/journeys/booked_performer.h"

namespace tb {
namespace {

using test::BookedPerformer;
using test::Running;

void promote(Running& game, const std::string& title) {
  game.player.press("Work");
  game.player.press("Auditions");
  game.player.press("Releases");
  game.player.press(title);
  game.player.press("PROMOTE");
  game.player.press("Post");
  EXPECT_EQ(game.player.notice(), "🎤 Say Something 🎤");
  game.player.press("OK");
  game.player.press("Suggest an answer");
  game.player.press("Post");
  EXPECT_EQ(game.player.notice(), "🎤 That's a Take 🎤");
  game.player.press("OK");
  EXPECT_FALSE(game.player.sees("PROMOTE"));
  game.player.press("Back");
  game.player.press("Back");
}

double sumOfRun(const WorldState& world) {
  double sum = 0;
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    const auto& weeks = market.boxOfficeWeeklyEarnings;
    EXPECT_EQ(weeks.size(), 7U) << market.countryName;
    EXPECT_EQ(market.weeksTracked.size(), weeks.size());
    const double run = std::accumulate(weeks.begin(), weeks.end(), market.openingWeekend);
    EXPECT_NEAR(market.totalGross, run, 1e-3) << market.countryName;
    sum += run;
  }
  return sum;
}

void watchTheRelease(Running& game) {
  game.player.press("Home");
  game.player.press("End Week");
  game.player.press("New Release");
  EXPECT_EQ(game.player.title(), "New Release");
  EXPECT_TRUE(game.player.sees("Salt Road"));
  EXPECT_TRUE(game.player.sees("Harbor Lights"));
  game.player.press("Box office of Salt Road");
  EXPECT_TRUE(game.player.sees("Domestic"));
  game.player.press("Back");
  game.player.press("Back");
  EXPECT_FALSE(game.player.sees("New Release"));
  game.player.press("Close");
}

TEST(FilmLife, ALeadPromotesAndWatchesTheFilmOpenRunAndClose) {
  BookedPerformer performer(7);
  auto game = std::make_unique<Running>(performer);
  game->endWeek();
  ASSERT_EQ(game->world().saveAllFilmList.size(), 2U);
  const std::int64_t energy = game->world().totalEnergyAvailable;
  promote(*game, "Salt Road");
  EXPECT_EQ(game->world().totalEnergyAvailable, energy - 25);
  EXPECT_EQ(game->world().saveAllQuotes.size(), 1U);
  game->endWeek();
  watchTheRelease(*game);
  EXPECT_EQ(game->world().saveAllChirpList.back().chirpName, "Box Office Jojo");

  game->player.press("Work");
  game->player.press("Box Office");
  EXPECT_TRUE(game->player.sees("IN THEATERS"));
  game->player.press("Salt Road");
  EXPECT_TRUE(game->player.sees("Eight-week box office performance is based on ticket sales."));
  game->player.press("Back");
  game->player.press("Back");

  // What is on disk is all that the run needs.
  for (int week = 1; week <= 7; ++week) {
    game.reset();
    game = std::make_unique<Running>(performer);
    game->endWeek();
  }
  EXPECT_NEAR(game->film(1).boxOfficeGross, sumOfRun(game->world()), 1e-3);
  EXPECT_GT(game->film(1).boxOfficeGross, 0);
  ASSERT_EQ(game->world().saveAllRoyaltyPayouts.size(), 1U);
  EXPECT_NEAR(game->world().saveAllRoyaltyPayouts.front().payout, game->film(1).boxOfficeGross * 0.02, 1e-3);
  EXPECT_EQ(game->world().saveAllRoyaltyPayouts.front().weekNumberForTracking,
            game->world().weekNumberForTracking);
  ASSERT_EQ(game->world().saveAllRatings.size(), 1U);
  EXPECT_EQ(game->world().saveAllRatings.front().premiereViews.size(), 8U);
  EXPECT_EQ(game->world().saveAllRatings.front().hoursWatched.size(), 8U);

  game->player.press("Work");
  game->player.press("Box Office");
  EXPECT_TRUE(game->player.sees("Nothing in theaters"));
  game->player.press("Yours");
  EXPECT_TRUE(game->player.sees("1. Salt Road"));
}

}  // namespace
}  // namespace tb
