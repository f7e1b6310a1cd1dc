// The front page: the headline, moments, and folded lines.

#include "week/front_page.h"

#include <gtest/gtest.h>

#include "core/log.h"
#include "tests/scratch_game.h"
#include "week/end_week.h"
#include "week/news_desk.h"

namespace tb {
namespace {

struct FrontPageLayout : test::RuleTest {
  FrontPageLayout() { world.weekNumberForTracking = 20; }

  // Adds a project with the next id from 1, titled "One", "Two", ...
  Audition& add(std::int64_t funnelStage, std::int64_t weekReleased = 40) {
    const char* const titles[] = {"One", "Two", "Three", "Four", "Five", "Six"};
    const std::size_t count = world.saveAllAuditionList.size();
    world.saveAllAuditionList.push_back({.filmId = static_cast<std::int64_t>(count) + 1,
                                         .title = titles[count],
                                         .role = "Extra",
                                         .weekReleased = weekReleased,
                                         .funnelStage = funnelStage});
    return world.saveAllAuditionList.edit(count);
  }
  void tell(NewsKind kind, std::int64_t filmId = 0, double amount = 0) {
    feedLine(world, {kind, filmId, amount}, "line " + std::to_string(world.WeekFeed.size() + 1));
  }
  [[nodiscard]] FrontPage lay() const { return layOutFrontPage(game); }

  static std::vector<std::string> textsOf(const std::vector<Story>& stories) {
    std::vector<std::string> texts;
    for (const Story& story : stories) texts.push_back(story.text);
    return texts;
  }
  void expectHeadline(const std::string& text) const {
    EXPECT_EQ(textsOf(lay().headline), std::vector<std::string>{text});
  }
};

using Texts = std::vector<std::string>;

TEST_F(FrontPageLayout, TheHighestRankIsTheHeadline) {
  // In ascending rank.
  const NewsKind rising[] = {NewsKind::jobEnded, NewsKind::classDone, NewsKind::invitation, NewsKind::payday,
                             NewsKind::wrap,     NewsKind::renewal,   NewsKind::offer,      NewsKind::award};
  for (const NewsKind kind : rising) {
    tell(kind);
    if (kind == NewsKind::jobEnded) {
      EXPECT_TRUE(lay().headline.empty()) << "no headline for the end of a job";
    } else {
      expectHeadline("line " + std::to_string(world.WeekFeed.size()));
    }
    tell(NewsKind::silence);
  }
}

TEST_F(FrontPageLayout, EqualRanksCompareAmountThenOrder) {
  tell(NewsKind::payday, 0, 50);
  tell(NewsKind::payday, 0, 900);
  tell(NewsKind::payday, 0, 900);
  expectHeadline("line 2");
}

TEST_F(FrontPageLayout, OtherLinesKeepTheFeedOrder) {
  tell(NewsKind::silence);
  tell(NewsKind::wrap);
  tell(NewsKind::offer);
  tell(NewsKind::jobEnded);
  EXPECT_EQ(textsOf(lay().rows), (Texts{"line 1", "line 2", "line 4"}));
}

TEST_F(FrontPageLayout, FoldsRefusalsAndSilences) {
  for (int count = 0; count < 5; ++count) add(funnel::closed);
  world.saveAllAuditionList.edit(4).typeOfFilm = filmType::commercial;
  tell(NewsKind::silence, 1);
  EXPECT_EQ(textsOf(lay().rows), Texts{"line 1"});  // a single one is not folded
  EXPECT_TRUE(lay().folded.empty());
  tell(NewsKind::jobEnded);
  tell(NewsKind::refusal, 2);
  EXPECT_EQ(textsOf(lay().rows), Texts{"line 2"});
  EXPECT_EQ(textsOf(lay().folded), (Texts{"line 1", "line 3"}));
  EXPECT_EQ(foldedWords(lay().folded), "Two said no, One never wrote back");
  tell(NewsKind::silence, 3);
  EXPECT_EQ(foldedWords(lay().folded), "Two said no, 2 never wrote back");
  tell(NewsKind::refusal, 5);
  EXPECT_EQ(foldedWords(lay().folded), "2 said no, 2 never wrote back");
  world.WeekFeed.clear();
  world.weekFeedNews.clear();
  tell(NewsKind::refusal, 5);
  tell(NewsKind::refusal, 1);
  EXPECT_EQ(foldedWords(lay().folded), "2 said no");
  tell(NewsKind::silence, 5);
  EXPECT_EQ(foldedWords(lay().folded), "2 said no, a commercial never wrote back");
}

TEST_F(FrontPageLayout, FirstRolesAndLeadsAreMoments) {
  add(funnel::booked);
  add(funnel::booked);
  tell(NewsKind::award);
  tell(NewsKind::offer, 1);
  tell(NewsKind::offer, 2);
  EXPECT_TRUE(isMoment(world, world.weekFeedNews[1], world.weekFeedNews));  // both in the first week
  EXPECT_TRUE(isMoment(world, world.weekFeedNews[2], world.weekFeedNews));
  add(funnel::wrapped);
  EXPECT_FALSE(isMoment(world, world.weekFeedNews[1], world.weekFeedNews));
  world.saveAllAuditionList.edit(1).role = "Lead";
  EXPECT_FALSE(isMoment(world, world.weekFeedNews[1], world.weekFeedNews));
  EXPECT_TRUE(isMoment(world, world.weekFeedNews[2], world.weekFeedNews));
  EXPECT_TRUE(isMoment(world, world.weekFeedNews[0], world.weekFeedNews));
}

TEST_F(FrontPageLayout, TheFirstOpeningAndTheFirstPremiereAreMoments) {
  add(funnel::wrapped, 10).typeOfFilm = filmType::feature;
  add(funnel::wrapped, 19).typeOfFilm = filmType::series;
  const News opening{NewsKind::opening, 2};
  const News premiere{NewsKind::premiere, 2};
  EXPECT_FALSE(isMoment(world, opening, std::vector{opening}));
  EXPECT_TRUE(isMoment(world, premiere, std::vector{premiere}));
  add(funnel::wrapped, 11).typeOfFilm = filmType::series;
  EXPECT_FALSE(isMoment(world, premiere, std::vector{premiere}));
  world.saveAllAuditionList.edit(1).isPrincipal = rolePart::principal;
  EXPECT_TRUE(isMoment(world, premiere, std::vector{premiere}));
}

TEST_F(FrontPageLayout, MomentsComeBeforeHigherRanks) {
  add(funnel::wrapped, 10);  // an earlier release, so that the next one is not the first
  add(funnel::booked).role = "Lead";
  add(funnel::wrapped, 19);
  world.saveAllFilmList.push_back({.filmId = 3, .title = "Three", .weekReleased = 19});
  tell(NewsKind::offer, 2);
  EXPECT_TRUE(lay().isMoment);
  expectHeadline("line 1");
  EXPECT_EQ(textsOf(lay().rows), Texts{"Three is in theaters."});
  world.saveAllAuditionList.edit(1).role = "Extra";
  EXPECT_FALSE(lay().isMoment);
  expectHeadline("Three is in theaters.");
}

TEST_F(FrontPageLayout, ShowsReleases) {
  struct Case {
    std::int64_t typeOfFilm, season;
    const char* text;
    NewsKind kind;
  };
  const Case cases[] = {
      {filmType::feature, -1, "One opened in theaters with $3.0M.", NewsKind::opening},
      {filmType::studentFilm, -1, "One had its first screening.", NewsKind::opening},
      {filmType::series, 1, "One premiered to 12.0K viewers.", NewsKind::premiere},
      {filmType::series, 2, "One Season 2 premiered to 12.0K viewers.", NewsKind::premiere},
  };
  add(funnel::wrapped, 19);
  for (const auto& [type, season, text, kind] : cases) {
    world.saveAllFilmList = {
        {.filmId = 1, .typeOfFilm = type, .title = "One", .weekReleased = 19, .seasonNumber = season}};
    world.saveAllBoxOfficeList.clear();
    world.saveAllRatings.clear();
    if (type == filmType::feature) world.saveAllBoxOfficeList = {{.filmId = 1, .totalGross = 3e6}};
    if (type == filmType::series) world.saveAllRatings = {{.filmId = 1, .premiereViews = {12'000}}};
    const FrontPage page = lay();
    ASSERT_EQ(page.headline.size(), 1u) << text;
    EXPECT_EQ(page.headline[0].text, text);
    EXPECT_EQ(page.headline[0].about.kind, kind);
    EXPECT_TRUE(page.isMoment) << "the first title of a career";
  }
  world.saveAllFilmList = {{.filmId = 1, .typeOfFilm = filmType::commercial, .weekReleased = 19}};
  EXPECT_TRUE(lay().headline.empty());
}

TEST_F(FrontPageLayout, WrapsShowTheirPay) {
  add(funnel::wrapped);
  tell(NewsKind::wrap, 1);
  world.saveAllWeeklyEarnings = {
      {.filmId = 1, .sessionEarned = 7, .weekNumberForTracking = 19},
      {.filmId = 1, .sessionEarned = 900, .buyoutEarned = 50, .weekNumberForTracking = 20},
      {.filmId = 2, .sessionEarned = 3, .weekNumberForTracking = 20}};
  EXPECT_EQ(lay().headline[0].about.amount, 950);
}

}  // namespace
}  // namespace tb
