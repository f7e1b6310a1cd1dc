// The order of a week's steps, in a world where each step has a visible effect.

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/memory_port.h"
#include "week/end_week.h"

namespace tb {
namespace {

// The visible effect of a step.
struct Trace {
  std::string step;
  std::function<bool(const WorldState&)> isLeft;
};

// A random source that always gives the lowest value, or always the highest. At each draw it records which
// steps have had their effect.
class Witness : public RandomSource {
 public:
  std::uint64_t next() override {
    look();
    const bool isLucky = !seen_.empty() && seen_.back() == lucky_step_ && draws_after_++ == 1;
    return isLucky ? highest : word_;
  }
  void give(std::uint64_t word) { word_ = word; }
  void giveHighest() { give(highest); }
  // The first draw after this step and its line gives the highest value.
  void giveHighestAfter(std::string step) { lucky_step_ = std::move(step); }
  void watch(const WorldState& world, std::vector<Trace> traces) {
    world_ = &world;
    awaited_ = std::move(traces);
    seen_.clear();
  }
  // The steps in the order they were recorded; steps found at the same draw are on one line.
  std::vector<std::string> seen() {
    look();
    return seen_;
  }

 private:
  void look() {
    std::string noticed;
    std::erase_if(awaited_, [&](const Trace& trace) {
      if (!trace.isLeft(*world_)) return false;
      noticed += (noticed.empty() ? "" : ", ") + trace.step;
      return true;
    });
    if (!noticed.empty()) seen_.push_back(noticed);
  }

  static constexpr std::uint64_t highest = ~std::uint64_t{0};

  std::uint64_t word_ = 1;
  std::string lucky_step_;
  int draws_after_ = 0;
  const WorldState* world_ = nullptr;
  std::vector<Trace> awaited_;
  std::vector<std::string> seen_;
};

constexpr std::int64_t now = 77;  // weekNumberForTracking, the 25th week of its year

struct WeekStepOrder : testing::Test {
  test::MemoryPort port;
  SaveStore store{port};
  Witness witness;
  Game game{.store = store, .random = witness};
  WorldState& world = game.world;

  WeekStepOrder() {
    world.weekNumber = 25;
    world.yearNumber = 2027;
    world.weekNumberForTracking = now;
  }

  void expectSeen(const std::vector<std::string>& looks) { EXPECT_EQ(witness.seen(), looks); }

  void addTitle(std::int64_t id, std::int64_t type, const std::string& title, std::int64_t age) {
    world.saveAllFilmList.push_back({.filmId = id,
                                     .typeOfFilm = type,
                                     .title = title,
                                     .yearReleased = 2025,
                                     .weekReleased = now - age,
                                     .budget = 1e6,
                                     .boxOfficeGross = 1,
                                     .imbdRating = 9,
                                     .currentPopularity = 50});
    world.saveAllAuditionList.push_back({.filmId = id,
                                         .typeOfFilm = type,
                                         .isPrincipal = 1,
                                         .title = title,
                                         .isContinued = 0,
                                         .weekReleased = now - age,
                                         .funnelStage = funnel::wrapped});
  }
};

TEST_F(WeekStepOrder, OfTheWeekThatEnds) {
  constexpr std::int64_t roles = 6;  // one more than the limit without stress; one of them wraps
  for (std::int64_t id = 1; id <= roles; ++id) {
    world.saveAllAuditionList.push_back({.filmId = id,
                                         .isPrincipal = 1,
                                         .title = "Wrapping",
                                         .weekToWork = id == 1 ? now : now + 5,
                                         .weekReleased = now + 9,
                                         .funnelStage = funnel::booked});
  }
  world.weeklyJobTitle = "Set Runner";
  world.weeklyEnergyCost = 7;
  world.totalEnergyAvailable = 50;
  world.weekNetIncome = 1;
  witness.watch(
      world,
      {{"the week starts", [](const WorldState& state) { return state.weekNetIncome == 0; }},
       {"auditions", [](const WorldState& state) { return state.saveAllAuditionList[0].funnelStage == 3; }},
       {"energy", [](const WorldState& state) { return state.totalEnergyAvailable != 50; }},
       {"job", [](const WorldState& state) { return state.weeklyJobTitle.empty(); }},
       {"clock", [](const WorldState& state) { return state.weekNumberForTracking == now + 1; }}});
  endWeek(game);
  expectSeen({"the week starts", "auditions", "energy, job, clock"});
  EXPECT_EQ(world.totalEnergyAvailable, 100 - 7);  // the ending job and five roles
}

// A bid, a sale and reruns; verdicts on a series and a saga; the close of a run, the end of a class, the
// first Patron payment, and a removed audition.
TEST_F(WeekStepOrder, OfTheSummaryThatOpens) {
  addTitle(1, filmType::feature, "Sold", 60);
  addTitle(2, filmType::series, "Renewed", 11);
  addTitle(3, filmType::feature, "Ended", 11);
  addTitle(4, filmType::feature, "Closed", 8);
  world.saveAllAuditionList.edit(0).isContinued = -1;
  world.saveAllAuditionList.edit(2).franchiseId = 999;  // a saga without a next film
  world.saveAllFilmList.edit(3).boxOfficeGross = 0;
  world.saveAllBoxOfficeList = {{.filmId = 4, .totalGross = 5e5}};
  world.saveAllSyndication = {{.filmId = 1,
                               .filmName = "Sold",
                               .networkNames = {"Fulu"},
                               .networkOffers = {1'000},
                               .networkYears = {1},
                               .networkImages = {"imbdFulu.png"},
                               .weekOfFirstOffer = now - 4}};
  world.saveAllCompletedClasses = {{.classId = 1, .weeksRemaining = 1}};
  for (int review = 0; review < 10; ++review) world.saveAllMovieReviews.push_back({});
  world.saveAllAuditionList.push_back({.filmId = 5, .funnelStage = funnel::closed});
  world.totalFans = 10'000;
  world.saveAllWeeklyLineItems = {{.category = WeeklyLineItem::lifestyleCategory, .typeOfExpense = 116}};
  world.weekNumber = 50;  // an even week, in which the stars are ranked, and one with a clean-up
  world.saveAllTopTenList = {{.filmId = TopTen::firstInventedId, .currentPopularity = 200}};
  world.saveAllTopTenSeriesList = world.saveAllTopTenList;
  world.saveAllTalentAgents = {{.id = 8, .isSigned = 1, .weekToSendAudition = 5}};
  world.filmId = 99;
  world.saveAllMatchesList = {
      {.relationshipStatus = 60, .igFollowers = 1'000, .relationshipState = bond::dating}};

  witness.watch(
      world,
      {{"bids", [](const WorldState& state) { return state.saveAllSyndication[0].networkNames.size() == 2; }},
       {"deals", [](const WorldState& state) { return state.saveAllSyndication[0].didAcceptOffer; }},
       {"agent", [](const WorldState& state) { return state.saveAllAuditionList.back().filmId == 100; }},
       {"talk", [](const WorldState& state) { return state.saveAllFilmList[1].currentPopularity != 50; }},
       {"series", [](const WorldState& state) { return state.saveAllAuditionList[1].isContinued == 1; }},
       {"saga", [](const WorldState& state) { return state.saveAllAuditionList[2].isContinued == -1; }},
       {"films' chart", [](const WorldState& state) { return state.saveAllTopTenList[0].rankThisWeek == 1; }},
       {"series' chart",
        [](const WorldState& state) { return state.saveAllTopTenSeriesList[0].rankThisWeek == 1; }},
       {"box office", [](const WorldState& state) { return state.saveAllFilmList[3].boxOfficeGross == 5e5; }},
       {"classes",
        [](const WorldState& state) { return state.saveAllCompletedClasses[0].weeksRemaining == 0; }},
       {"star", [](const WorldState& state) { return !state.saveStarRankingMeter.empty(); }},
       {"relationship",
        [](const WorldState& state) { return state.saveAllMatchesList[0].igFollowers != 1'000; }},
       {"cameo", [](const WorldState& state) { return !state.saveAllCameos.empty(); }},
       {"balance", [](const WorldState& state) { return !state.trackPatronEarnings.empty(); }},
       {"clean-up", [](const WorldState& state) { return !state.save.empty(); }}});
  witness.giveHighestAfter("saga");
  const WeekSummary summary = openSummary(game);
  EXPECT_EQ(summary.events.size(), 3u) << "the events of the week are drawn right after the sagas";
  expectSeen({"bids", "deals", "agent", "talk", "series", "saga", "films' chart", "series' chart, box office",
              "classes, star", "relationship", "cameo, balance, clean-up"});
  EXPECT_NEAR(world.saveAllFilmList[0].lastWeekPopularity, 52,
              1e-9);  // the sale's boost of two, then the drift
  const auto lineWith = [&](const std::string& word) {
    return std::ranges::find_if(summary.feed, [&](const std::string& line) { return line.contains(word); });
  };
  EXPECT_LT(lineWith("Drama"), lineWith("Patron"));  // classes before the balance, with no draw between
  EXPECT_NE(lineWith("Patron"), summary.feed.end());
}

// In a week without news the tip is drawn after the balance and before the remaining steps.
TEST_F(WeekStepOrder, OfAQuietSummary) {
  addTitle(1, filmType::studentFilm, "Out", 1);
  world.saveAllAuditionList.push_back({.filmId = 5, .funnelStage = funnel::closed});
  witness.watch(world, {{"release is offered", [](const WorldState& state) { return state.releaseOffered; }},
                        {"clean-up", [](const WorldState& state) { return !state.save.empty(); }}});
  EXPECT_TRUE(openSummary(game).offersRelease);
  expectSeen({"release is offered", "clean-up"});
}

// In a week in which every kind of offer can come.
TEST_F(WeekStepOrder, OfTheOffers) {
  world.weekNumber = 10 * 13 * 16;
  world.isSAG = 1;
  world.saveFameLevel = 61;
  world.experience = 20'000;
  for (Int WorldState::* trait :
       {&WorldState::talentTrait1, &WorldState::talentTrait2, &WorldState::talentTrait3,
        &WorldState::talentTrait4, &WorldState::talentTrait5}) {
    world.*trait = 120;
  }
  world.saveAllTalentAgents = {{.id = 5, .isSigned = 1}};
  for (std::int64_t id = 1; id <= 24; ++id) {
    world.saveAllAuditionList.push_back(
        {.filmId = id, .isPrincipal = 1, .weekReleased = now - 300, .funnelStage = funnel::wrapped});
  }
  // The 25th role counts because auditions come first.
  world.saveAllAuditionList.push_back(
      {.filmId = 25, .isPrincipal = 1, .weekAudition = now, .funnelStage = funnel::invited, .didAct = 0});
  const auto hasCome = [](std::int64_t kind) {
    return [kind](const WorldState& state) {
      return std::ranges::contains(state.saveAllEmailList, kind, &Email::typeOfDeal);
    };
  };
  witness.giveHighest();
  witness.watch(world,
                {{"auditions",
                  [](const WorldState& state) { return state.saveAllAuditionList.back().funnelStage == 2; }},
                 {"agent", [](const WorldState& state) { return state.saveAllTalentAgents.size() == 2; }},
                 {"investor", hasCome(deal::investment)},
                 {"stake", hasCome(deal::royalty)},
                 {"saga", hasCome(deal::franchise)},
                 {"energy", [](const WorldState& state) { return state.totalEnergyAvailable != 50; }}});
  world.totalEnergyAvailable = 50;
  endWeek(game);
  expectSeen({"auditions", "agent", "investor", "stake", "saga", "energy"});
}

// The award shows and the swings have weeks of their own.
TEST_F(WeekStepOrder, OfTheAudience) {
  for (const std::int64_t type : {filmType::feature, filmType::series}) {
    addTitle(type + 1, type, "Acclaimed", 60);
    Film& film = world.saveAllFilmList.edit(world.saveAllFilmList.size() - 1);
    film.yearReleased = world.yearNumber - 1;
    film.imbdMetascore = 100;
    film.genres = {"Drama"};
  }
  world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
      100;
  const auto playTheWeek = [&](std::int64_t week) {
    world.weekNumber = week;
    world.totalFans = 1'000;
    world.trackFans = {1};
    world.totalEnergyAvailable = 50;
    world.saveAllMovieAwards.clear();
    witness.watch(world,
                  {{"drift", [](const WorldState& state) { return state.trackFans.size() == 2; }},
                   {"awards", [](const WorldState& state) { return !state.saveAllMovieAwards.empty(); }},
                   {"swing", [](const WorldState& state) { return state.trackFans.size() == 3; }},
                   {"energy", [](const WorldState& state) { return state.totalEnergyAvailable != 50; }}});
    endWeek(game);
  };
  for (const auto& [week, show] : {std::pair{3, "Cademy Awards"}, {7, "Emme Awards"}}) {
    playTheWeek(week);
    expectSeen({"drift", "awards", "energy"});
    for (const Award& award : world.saveAllMovieAwards) EXPECT_EQ(award.awardShow, show);
  }
  witness.giveHighest();
  playTheWeek(28);
  expectSeen({"drift", "swing, energy"});
}

// Each time it appears. A story breaks on the one roll in seven that the middle of all words gives.
TEST_F(WeekStepOrder, OfTheSummaryThatAppears) {
  witness.give(std::uint64_t{1} << 63);
  world.weekNumber = 31;
  EXPECT_TRUE(showSummary(game).forReview);
  EXPECT_FALSE(showSummary(game).forRandomEvent);
  world.weekNumber = 33;
  EXPECT_TRUE(showSummary(game).forRandomEvent);
  EXPECT_FALSE(showSummary(game).forRandomEvent);
  endWeek(game);
  EXPECT_EQ(world.randomEventShownThisWeek, 0);
}

TEST_F(WeekStepOrder, OfTheSummaryThatCloses) {
  witness.watch(world,
                {{"net", [](const WorldState& state) { return !state.saveWeeklyEarnings.empty(); }},
                 {"log", [](const WorldState& state) { return !state.activityTracker.empty(); }},
                 {"real estate", [](const WorldState& state) { return !state.trackRealEstateIndex.empty(); }},
                 {"cards", [](const WorldState& state) { return !state.trackCardIndex.empty(); }}});
  closeSummary(game);
  expectSeen({"net, log", "real estate", "cards"});
}

}  // namespace
}  // namespace tb
