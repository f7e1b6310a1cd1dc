// Fans, fame, the star meter and The Cameo, on both sides of each limit.

#include <format>
#include <gtest/gtest.h>

#include "core/chirps.h"
#include "social/cameo.h"
#include "social/chirp_posts.h"
#include "social/fame.h"
#include "social/fans.h"
#include "social/star_meter.h"
#include "tests/scratch_game.h"
#include "tests/sheet.h"

namespace tb {
namespace {

using test::Sheet;

void setTalent(WorldState& world, std::int64_t talent) {
  world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
      talent;
}

// The gain and the loss of a week with the lowest and the highest step.
TEST(GoldenAudience, DriftByFans) {
  Sheet sheet("audience_drift");
  const auto draws = [](std::int64_t fans, std::int64_t talent, double step) {
    test::ScratchGame game;
    game.world.totalFans = fans;
    setTalent(game.world, talent);
    game.random.unit(step).range(101, 50);
    driftFans(game.game);
    return game.world.totalFans - fans;
  };
  for (const std::int64_t fans : {-1L,
                                  0L,
                                  5L,
                                  100L,
                                  101L,
                                  1'000L,
                                  1'001L,
                                  10'001L,
                                  10'002L,
                                  100'000L,
                                  100'001L,
                                  1'000'000L,
                                  1'000'001L,
                                  10'000'000L,
                                  10'000'001L,
                                  100'000'000L,
                                  100'000'001L,
                                  1'000'000'000L,
                                  1'000'000'001L,
                                  6'000'000'000L,
                                  6'000'000'001L}) {
    sheet.line(std::format("{} fans: {:+} to {:+}, {:+} to {:+}", fans, draws(fans, 50, 0),
                           draws(fans, 50, 1), draws(fans, 49, 0), draws(fans, 49, 1)));
  }
}

struct Fans : test::RuleTest {};

TEST_F(Fans, AreTracked) {
  // A week in which a small audience would shrink leaves no entry.
  world.totalFans = 1'000;
  random.range(4, 0).range(101, 90);
  driftFans(game);
  EXPECT_TRUE(world.trackFans.empty());

  // One entry leaves in each step, even if there are several too many, as withdrawals add some.
  for (int entry = 0; entry < 39; ++entry) world.trackFans.push_back(entry);
  setTalent(world, 100);
  random.range(4, 3).range(101, 100);
  driftFans(game);
  EXPECT_EQ(world.trackFans.size(), 39u);
  EXPECT_EQ(world.trackFans.front(), 1);
  EXPECT_EQ(world.trackFans.back(), 1'005);
}

TEST_F(Fans, SwingInEveryFourthWeek) {
  world.totalFans = 2'000;
  const auto swing = [&](std::int64_t week, std::int64_t roll, double share) {
    world.weekNumber = week;
    if (week % 4 == 0) random.range(101, roll);
    if (week % 4 == 0 && (roll >= 90 || (roll >= 50 && roll <= 60))) random.unit(share);
    swingFans(game);
    return world.totalFans;
  };
  world.weekNumber = 4;
  swingFans(game);  // draws nothing without a history
  world.trackFans = {700};
  EXPECT_EQ(swing(5, 90, 1), 2'000);
  for (const std::int64_t roll : {0, 49, 61, 89}) EXPECT_EQ(swing(4, roll, 1), 2'000);
  EXPECT_EQ(world.trackFans, IntList{700});
  EXPECT_EQ(swing(4, 90, 1), 2'100);
  EXPECT_EQ(swing(8, 50, 0.5), 2'048);  // 52.5 fans
  EXPECT_EQ(swing(52, 60, 0), 2'048);
  EXPECT_EQ(world.trackFans, (IntList{700, 800, 748, 748}));
  for (std::size_t entry = world.trackFans.size(); entry < trackedFans; ++entry)
    world.trackFans.push_back(10);
  EXPECT_EQ(swing(12, 100, 1), 2'150);
  EXPECT_EQ(world.trackFans.size(), trackedFans);
  EXPECT_EQ(world.trackFans.back(), 112);
}

TEST(GoldenAudience, FameByPart) {
  Sheet sheet("audience_fame");
  const auto level = [&](const std::string& what, const Sheet::Prepare& prepare) {
    sheet.text(
        what,
        [&](WorldState& world) {
          world.myName = "Ada Quinn";
          world.weekNumberForTracking = 100;
          prepare(world);
        },
        [](Game& game) {
          const FameParts parts = fameParts(game.world);
          updateFame(game);
          return std::format(
              "{} {}: awards {} rating {} experience {} image {} talent {} fans {:.3f} "
              "retention {:.2f} returns {:.2f}",
              game.world.saveFameLevel, fameLetter(game.world.saveFameLevel), parts.awards, parts.rating,
              parts.experience, parts.image, parts.talent, parts.fans, parts.retention, parts.returns);
        });
  };
  for (const std::int64_t fans :
       {0L, 500L, 1'000L, 1'001L, 10'000L, 10'001L, 100'000L, 100'001L, 1'000'000L, 1'000'001L, 10'000'000L,
        10'000'001L, 100'000'000L, 100'000'001L, 200'000'000L, 900'000'000L}) {
    level(std::format("{} fans", fans), [&](WorldState& world) { world.totalFans = fans; });
  }
  for (const auto& [wins, nominations] : {std::pair{0, 3}, {0, 4}, {1, 0}, {4, 3}, {5, 0}, {9, 9}}) {
    level(std::format("{} wins, {} more nominations", wins, nominations), [&](WorldState& world) {
      for (int award = 0; award < wins + nominations; ++award) {
        world.saveAllMovieAwards.push_back({.name = "Ada Quinn", .isWinner = award < wins ? 1 : 0});
      }
      world.saveAllMovieAwards.push_back({.name = "The Director", .isWinner = 1});
    });
  }
  for (const std::int64_t image : {-50, 9, 10, 100, 140}) {
    level(std::format("image {}", image), [&](WorldState& world) { world.publicImage = image; });
  }
  for (const double experience : {999.9, 1'000.0, 12'345.0}) {
    level(std::format("experience {}", experience),
          [&](WorldState& world) { world.experience = experience; });
  }
  for (const std::int64_t talent : {9, 10, 100, 120}) {
    level(std::format("talent {}", talent), [&](WorldState& world) { setTalent(world, talent); });
  }
  const Film film{.filmId = 1,
                  .isPrincipal = 1,
                  .weekReleased = 99,
                  .budget = 2e6,
                  .boxOfficeGross = 5e6,
                  .imbdRating = 8.2,
                  .imbdMetascore = 90};
  for (const auto& [what, principal, released, gross] : {std::tuple{"a lead", 1, 99, 5e6},
                                                         {"an extra", 0, 99, 5e6},
                                                         {"not out", 1, 100, 0.0},
                                                         {"a hit", 1, 99, 2e7},
                                                         {"in theaters", 1, 99, 0.0}}) {
    level(what, [&](WorldState& world) {
      Film shown = film;
      shown.isPrincipal = principal;
      shown.weekReleased = released;
      shown.boxOfficeGross = gross;
      world.saveAllFilmList = {shown, {.filmId = 2, .isPrincipal = 1}};
      world.saveAllBoxOfficeList = {{.filmId = 1, .totalGross = 1e6}, {.filmId = 1, .totalGross = 5e5}};
    });
  }
  level("two seasons", [](WorldState& world) {
    world.saveAllRatings = {
        {.premiereViews = {100, 50, 80}}, {.premiereViews = {200}}, {.premiereViews = {0, 9}}};
  });
  level("a life", [](WorldState& world) {
    world.totalFans = 150'000'000;
    world.experience = 60'000;
    world.publicImage = 88;
    setTalent(world, 100);
  });
}

TEST(GoldenAudience, StarMeterByGross) {
  Sheet sheet("audience_star_meter");
  for (const double gross : {0.0, 1e6, 1'000'001.0, 1e7, 5e8, 4.3e9, 4'309'711'029.0, 4'309'711'030.0,
                             4'309'711'031.0, 1e10, 2e10}) {
    sheet.changes(
        std::format("gross {:.0f}", gross),
        [&](WorldState& world) {
          world.weekNumber = 52;
          world.saveBoxOffice = 5'000'000;
          for (int entry = 0; entry < 52; ++entry) world.saveStarRankingMeter.push_back(7);
          world.saveAllFilmList = {{.filmId = 1, .isPrincipal = 1, .boxOfficeGross = gross},
                                   {.filmId = 2, .isPrincipal = 0, .boxOfficeGross = 1e9}};
        },
        rankStar);
  }
  sheet.changes("an odd week", [](WorldState& world) { world.saveAllFilmList = {{.filmId = 1}}; }, rankStar);
  sheet.changes("no film", [](WorldState& world) { world.weekNumber = 2; }, rankStar);
}

TEST(GoldenAudience, CameoPricesAndSales) {
  Sheet sheet("audience_cameo");
  for (const std::int64_t fame : {0, 10, 11, 20, 30, 40, 50, 60, 70, 80, 94, 95, 100, 101}) {
    sheet.line(std::format("fame {}: fair {}", fame, fairCameoPrice(fame)));
  }
  for (const double price : {0.0, 0.5, 1.0, 15.0, 24.0, 25.0, 26.0, 50.0, 100.0, 400.0, 1e6}) {
    sheet.changes(
        std::format("price {}", price), [](WorldState& world) { world.saveFameLevel = 30; },
        [&](Game& game) { setPrice(game, price); });
  }
  for (const auto& [fans, demand, open] : {std::tuple{9'999, 1.0, true},
                                           {10'000, 1.0, false},
                                           {10'000, 1.0, true},
                                           {100'000, 0.5, true},
                                           {100'001, 1.0, true},
                                           {1'000'001, 1.0, true},
                                           {10'000'000, 1.5, true},
                                           {10'000'001, 1.5, true}}) {
    sheet.changes(
        std::format("{} fans, demand {}, {}", fans, demand, open ? "open" : "closed"),
        [&](WorldState& world) {
          world.totalFans = fans;
          world.cameoDemandIndex = demand;
          world.setCameoPrice = 19.95;
          if (!open) return;
          world.saveAllWeeklyLineItems = {
              {.category = WeeklyLineItem::lifestyleCategory, .typeOfExpense = 116}};
        },
        cameoWeekStep);
  }
}

// --- Posts ---

struct Chirps : test::RuleTest {
  Chirps() : RuleTest(test::Unscripted::low) {}
};

TEST_F(Chirps, CostEnergyAndWords) {
  world.totalEnergyAvailable = chirpEnergy - 1;
  EXPECT_EQ(postChirp(game, " \n")->title, "🐥 Chirp Needed 🐥");
  EXPECT_EQ(postChirp(game, "Hello")->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_TRUE(world.saveAllChirpList.empty());
  world.totalEnergyAvailable = chirpEnergy;
  EXPECT_FALSE(postChirp(game, "Hello"));
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  EXPECT_EQ(world.chirpId, 1);
  EXPECT_EQ(world.saveAllChirpList.front().likeCount, 0);  // nobody follows
  EXPECT_EQ(chirpsByPlayer(world), 1);
}

TEST_F(Chirps, ReachSomeOfTheFans) {
  world.totalFans = 1'000'000;
  random.range(1'000'001, 1'000'000).unit(1).unit(0).unit(1);
  EXPECT_FALSE(postChirp(game, "Hello"));
  EXPECT_EQ(world.saveAllChirpList.front().likeCount, 20'000);
  EXPECT_EQ(world.saveAllChirpList.front().commentCount, 1'000);
  EXPECT_EQ(world.saveAllChirpList.front().reChirpCount, 4'000);
}

TEST_F(Chirps, AreKeptUpToALimitAndWhilePinned) {
  for (std::int64_t id = 1; id <= 200; ++id) addChirp(world, {.id = id});
  pin(game, 150);
  pin(game, 1);  // in place of the other
  EXPECT_EQ(world.saveAllChirpList[149].isPinned, 0);
  addChirp(world, {.id = 201});
  EXPECT_EQ(world.saveAllChirpList.size(), 200u);
  EXPECT_EQ(world.saveAllChirpList[0].id, 1);
  EXPECT_EQ(world.saveAllChirpList[1].id, 3);
  unpin(game, 1);
  addChirp(world, {.id = 202});
  EXPECT_EQ(world.saveAllChirpList[0].id, 3);
  deleteChirp(game, 3);
  deleteChirp(game, 3);
  EXPECT_EQ(world.saveAllChirpList.size(), 199u);
}

}  // namespace
}  // namespace tb
