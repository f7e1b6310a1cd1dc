#include <algorithm>
#include <cctype>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/memory_port.h"
#include "tests/random_user.h"

namespace tb {
namespace {

using test::Player;

// Whether the line has it as a whole word, as in "$nan" but not in "tenant".
bool hasWord(const std::string& line, const std::string& word) {
  const auto isLetter = [&](std::size_t at) {
    return at < line.size() && std::isalpha(static_cast<unsigned char>(line[at]));
  };
  for (std::size_t at = line.find(word); at != std::string::npos; at = line.find(word, at + 1)) {
    if (!isLetter(at - 1) && !isLetter(at + word.size())) return true;
  }
  return false;
}

void expectSoundPage(const Player& player) {
  for (const std::string& line : player.words()) {
    EXPECT_EQ(line.find('{'), std::string::npos) << "unfilled: " << line;
    EXPECT_FALSE(hasWord(line, "nan") || hasWord(line, "inf")) << line;
  }
}

void expectSoundWorld(const WorldState& world) {
  EXPECT_TRUE(std::isfinite(world.totalCashAvailable) && std::isfinite(world.experience));
  EXPECT_GE(world.totalEnergyAvailable, 0);
  EXPECT_GE(world.totalFans, 0);
  EXPECT_TRUE(world.weekNumber >= 1 && world.weekNumber <= 53);
  EXPECT_LE(world.trackRealEstateIndex.size(), 48u);
}

// A market's gross is its opening plus its weeks, and its lists are parallel.
void expectSoundBoxOffice(const WorldState& world) {
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    double sum = market.openingWeekend;
    for (const double week : market.boxOfficeWeeklyEarnings) sum += week;
    ASSERT_NEAR(market.totalGross, sum, 1e-9 * std::abs(sum) + 1e-6) << market.title;
    ASSERT_EQ(market.boxOfficeWeeklyEarnings.size(), market.weeksTracked.size());
    ASSERT_LE(market.weeksTracked.size(), 7u);
  }
  for (const Ratings& series : world.saveAllRatings) {
    ASSERT_EQ(series.premiereViews.size(), series.weeksTracked.size());
  }
}

// Exactly the wrapped projects have a film.
void expectFilmsInStep(const WorldState& world) {
  for (const Film& film : world.saveAllFilmList) {
    const auto project = std::ranges::find(world.saveAllAuditionList, film.filmId, &Audition::filmId);
    ASSERT_NE(project, world.saveAllAuditionList.end()) << film.title;
    ASSERT_EQ(project->funnelStage, funnel::wrapped) << film.title;
  }
}

TEST(Monkey, PlaysAThousandWeeksAtRandom) {
  test::MemoryPort port;
  SaveStore store(port);
  test::SeededRandom chance(7);
  App app(store, chance);
  Player player(app);
  test::RandomUser monkey(13);

  std::size_t mostFilms = 0;  // of a career; the last one may have just begun
  std::int64_t weeks = 0;
  std::int64_t week = app.game().world.weekNumberForTracking;
  for (int action = 0; weeks < 1000 && !testing::Test::HasFailure(); ++action) {
    ASSERT_TRUE(monkey.act(player)) << "nothing can be done on " << player.title();
    expectSoundPage(player);
    expectSoundWorld(app.game().world);
    const std::int64_t now = app.game().world.weekNumberForTracking;
    if (now == week) continue;
    week = now;
    weeks += 1;
    if (weeks % 50 != 0) continue;
    expectSoundBoxOffice(app.game().world);
    expectFilmsInStep(app.game().world);
    mostFilms = std::max(mostFilms, app.game().world.saveAllFilmList.size());
    EXPECT_EQ(SaveStore(port).dictionary(), store.dictionary());
    ASSERT_LT(action, 400'000);
  }
  EXPECT_GT(mostFilms, 0u);
}

}  // namespace
}  // namespace tb
