// The catalogue's tables.

#include "film/catalogue.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <set>

#include "core/records/career.h"
#include "tests/scripted_random.h"

namespace tb {
namespace {

TEST(Catalogue, HasCompleteRows) {
  for (const auto& [rows, count] :
       {std::pair{movies(), 145}, {royaltyMovies(), 23}, {investmentMovies(), 36}}) {
    EXPECT_EQ(std::ssize(rows), count);
    for (const Movie& row : rows) {
      EXPECT_FALSE(row.title.empty() || row.shortSummary.empty() || row.genre.empty()) << row.title;
      EXPECT_TRUE(row.type >= filmType::feature && row.type <= filmType::shortFilm) << row.title;
      EXPECT_TRUE(row.longSummaryTemplate.contains("{name}")) << row.title;
      EXPECT_TRUE(row.imageString.ends_with(".png")) << row.title;
      EXPECT_FALSE(row.title.ends_with('.')) << row.title << " ends the sentences that it stands in";
      EXPECT_FALSE(row.sights.prop.empty() || row.sights.place.empty()) << row.title;
    }
  }
  EXPECT_EQ(nounsOf("Neon Horizon").prop, "parcel");
  EXPECT_EQ(nounsOf("Nightglass: Dead Frequency").place, "highway");
  EXPECT_FALSE(nounsOf("A title of another game").prop.empty());
  EXPECT_EQ(movies().front().genre, (std::vector<std::string>{"Sci-Fi", "Thriller"}));
}

TEST(Catalogue, NumbersSagasWithoutGaps) {
  const MovieFranchise* before = nullptr;
  ASSERT_EQ(movieFranchises().size(), 22U);
  for (const MovieFranchise& entry : movieFranchises()) {
    const bool continues = before != nullptr && before->id == entry.id;
    EXPECT_EQ(entry.movieNumber, continues ? before->movieNumber + 1 : 1) << entry.title;
    EXPECT_EQ(entry.type, filmType::feature) << entry.title;
    before = &entry;
  }
}

TEST(Catalogue, HasConsistentAllTimeTables) {
  EXPECT_TRUE(std::ranges::is_sorted(movieRecords(), std::greater{}, &MovieRecord::worldwide));
  for (const MovieRecord& row : movieRecords()) EXPECT_LT(row.domestic, row.worldwide) << row.title;
  EXPECT_TRUE(std::ranges::is_sorted(tvRecords(), std::greater{}, &TVRecord::imdbRating));
  EXPECT_EQ(tvRecords().front().imdbRating, 9.6);
  EXPECT_EQ(tvRecords().back().rank, 250);
}

TEST(Catalogue, HasUniqueTitles) {
  std::set<std::string> titles;
  const auto add = [&](const auto& rows) {
    for (const auto& row : rows) EXPECT_TRUE(titles.insert(row.title).second) << row.title;
  };
  add(movies());
  add(royaltyMovies());
  add(investmentMovies());
  add(movieFranchises());
  add(movieRecords());
  add(tvRecords());
  add(rateMovieCatalogue());
}

TEST(Catalogue, RedrawsStarRatings) {
  test::ScriptedRandom random;
  for (int star = 0; star < 100; ++star) random.range(91, 90).range(51, 0);
  const std::vector<Bankable> stars = bankables(random);
  ASSERT_EQ(stars.size(), 100U);
  EXPECT_EQ(stars.back().id, 100);
  EXPECT_EQ(stars.back().rating, 100);
  EXPECT_EQ(stars.back().lastWeekRating, 50);
  EXPECT_EQ(stars.front().average, stars.front().totalGross / 51);
  EXPECT_EQ(stars.front().roles, 40);
}

}  // namespace
}  // namespace tb
