// The life of two titles as their lead sees it: wrapped, promoted, released, shown and over.

#include <gtest/gtest.h>
#include <numeric>

#include "core/save.h"
#include "tests/memory_port.h"
#include "tests/player.h"
#include "tests/seeded_random.h"

namespace tb {
namespace {

Audition bookedLead(std::int64_t filmId, std::int64_t typeOfFilm, const std::string& title) {
  return {.filmId = filmId,
          .typeOfFilm = typeOfFilm,
          .isPrincipal = rolePart::principal,
          .title = title,
          .genres = {"Western"},
          .role = "Lead",
          .characterName = "June Abara",
          .numberOfEpisodesActed = typeOfFilm == filmType::series ? 4 : 0,
          .numberOfEpisodesTotal = 8,
          .isContinued = -1,
          .weekToWork = 1,
          .weekReleased = 3,
          .payment = 9'000,
          .royalty = 2,
          .budget = 40e6,
          .funnelStage = stage::booked,
          .hypeRating = 50,
          .directorRating = 80,
          .directorName = "Mina Falk"};
}

// A performer who is booked for the lead of a film and of a series, both to be wrapped this week.
struct BookedPerformer {
  explicit BookedPerformer(std::uint64_t seed) : random(seed) {
    SaveStore store(port);
    Game game{.store = store, .random = random};
    game.world.myName = "Ada Quinn";
    game.world.enterPlayerDetails = 1;
    game.world.saveAllAuditionList.push_back(bookedLead(1, filmType::feature, "Salt Road"));
    game.world.saveAllAuditionList.push_back(bookedLead(2, filmType::series, "Harbor Lights"));
    save<&WorldState::myName, &WorldState::enterPlayerDetails, &WorldState::saveAllAuditionList>(game);
    EXPECT_TRUE(store.commit());
  }
  test::MemoryPort port;
  test::SeededRandom random;
};

struct Running {
  explicit Running(BookedPerformer& performer) : store(performer.port), app(store, performer.random) {}
  void endWeek() {
    player.press("Home");
    player.press("End Week");
    player.press("Close");
  }
  [[nodiscard]] const WorldState& world() const { return app.game().world; }
  [[nodiscard]] const Film& film(std::int64_t id) const {
    return *std::ranges::find(world().saveAllFilmList, id, &Film::filmId);
  }

  SaveStore store;
  App app;
  test::Player player{app};
};

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
