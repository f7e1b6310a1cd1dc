// The whole life of two titles as their maker sees it: wrapped, paid for, released, reviewed, in and out of
// fashion, settled at the box office, sold to a network, and still paying years later.

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/journeys/booked_performer.h"
#include "tests/journeys/books.h"

namespace tb {
namespace {

constexpr std::int64_t lead = 1;  // filmId
constexpr std::int64_t own = 2;
constexpr std::int64_t agentId = 5;
constexpr double commission = 0.1;
constexpr double fee = 9'000;
constexpr double ownFee = 2'000;
constexpr std::int64_t wrap = 1;
constexpr std::int64_t release = 3;
constexpr std::int64_t settlement = release + 8;

// A guild member, signed by an agent who brought a lead with a share of the gross, makes a film of her own at
// the same time. Both are by a director of the first rank and much talked about.
struct Maker : test::BookedPerformer {
  explicit Maker(std::uint64_t seed) : BookedPerformer(seed) {
    SaveStore store(port);
    Game game{.store = store, .random = random};
    WorldState& world = game.world;
    world.isSAG = 1;
    world.agentCommission = commission;
    world.agentFanBonus = 1;
    world.saveAllTalentAgents.push_back(
        {.id = agentId, .name = "Rosa Vance", .commissionPercentage = commission, .isSigned = 1});
    Audition role = test::bookedLead(lead, filmType::feature, "Salt Road");
    role.residual = 0.05;
    role.sourceId = agentId;
    Audition production = test::bookedLead(own, filmType::feature, "Own Goal");
    production.isPrincipal = rolePart::ownProduction;
    production.didAct = 0;
    production.payment = ownFee;
    production.royalty = 0;
    production.equityPercentage = 10;
    for (Audition* project : {&role, &production}) {
      project->weekReleased = release;
      project->hypeRating = 110;
      project->directorRating = 110;
      world.saveAllAuditionList.push_back(*project);
    }
    save<&WorldState::isSAG, &WorldState::agentCommission, &WorldState::agentFanBonus,
         &WorldState::saveAllTalentAgents, &WorldState::saveAllAuditionList>(game);
    EXPECT_TRUE(store.commit());
  }
};

// A deal as it was struck.
struct Struck {
  std::int64_t week = 0;
  double price = 0;
  std::int64_t years = 0;
  std::string network;
};

class Story {
 public:
  explicit Story(std::uint64_t seed) : maker_(seed), game_(std::make_unique<test::Running>(maker_)) {}

  [[nodiscard]] const WorldState& world() const { return game_->world(); }
  [[nodiscard]] const Film& film(std::int64_t id) const { return game_->film(id); }
  [[nodiscard]] test::Player& player() { return game_->player; }
  [[nodiscard]] std::int64_t now() const { return world().weekNumberForTracking; }

  void restart() {
    game_.reset();
    game_ = std::make_unique<test::Running>(maker_);
  }

  // Ends a week and leaves its summary open. The cash moves by what the books say, to the cent.
  void endWeek() {
    const double cash = world().totalCashAvailable;
    const double balance = books_.balance();
    player().press("Home");
    player().press("End Week");
    books_.addTheWeek(world());
    EXPECT_NEAR(world().totalCashAvailable - cash, books_.balance() - balance, 0.005) << "week " << now();
  }
  void liveUntil(std::int64_t week) {
    while (now() < week) {
      endWeek();
      if (now() < week) player().press("Close");
    }
  }

  [[nodiscard]] const Syndication* title(std::int64_t filmId) const {
    const auto& titles = world().saveAllSyndication;
    const auto found = std::ranges::find(titles, filmId, &Syndication::filmId);
    return found == titles.end() ? nullptr : &*found;
  }
  // Lives on until a network has bought the title, and stops at the summary of that week.
  Struck liveUntilSold(std::int64_t filmId, std::int64_t lastWeek) {
    while (now() < lastWeek) {
      endWeek();
      const Syndication* const sold = title(filmId);
      if (sold != nullptr && sold->didAcceptOffer) {
        const auto won = static_cast<std::size_t>(sold->networkIndexWon);
        return {.week = sold->weekStarted,
                .price = static_cast<double>(sold->networkOffers[won]),
                .years = sold->networkYears[won],
                .network = sold->networkNames[won]};
      }
      player().press("Close");
    }
    ADD_FAILURE() << "never sold";
    return {};
  }

  [[nodiscard]] std::vector<WeeklyEarnings> earningsOf(std::int64_t filmId) const {
    std::vector<WeeklyEarnings> found;
    std::ranges::copy_if(world().saveAllWeeklyEarnings, std::back_inserter(found),
                         [&](const WeeklyEarnings& line) { return line.filmId == filmId; });
    return found;
  }

  test::Books books_;

 private:
  Maker maker_;
  std::unique_ptr<test::Running> game_;
};

double grossOfRun(const WorldState& world, std::int64_t filmId) {
  double gross = 0;
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    if (market.filmId == filmId) gross += market.totalGross;
  }
  return gross;
}

void getsPaidForTheWork(Story& story) {
  story.liveUntil(wrap + 1);
  EXPECT_TRUE(story.player().sees("SESSIONS"));
  const auto sessions = story.earningsOf(lead);
  ASSERT_EQ(sessions.size(), 1U);
  EXPECT_EQ(sessions.front().weekNumberForTracking, wrap + 1);
  EXPECT_NEAR(sessions.front().sessionEarned, fee * 0.94, 1e-9);  // dues are taken twice
  EXPECT_NEAR(story.world().workDuesPaidSAG, (fee + ownFee) * 0.03, 1e-9);
  story.player().press("Close");
}

void isReviewed(Story& story) {
  story.liveUntil(release + 1);
  story.player().press("New Release");
  story.player().press("Imbd page of Salt Road");
  EXPECT_TRUE(story.player().sees(std::format("Metascore: {}", story.film(lead).imbdMetascore)));
  story.player().press("Back");
  story.player().press("Back");
  story.player().press("Close");
}

void isSettledAtTheBoxOffice(Story& story) {
  story.liveUntil(settlement);
  EXPECT_TRUE(story.player().sees("Royalties from media where you took a stake rather than payment"));
  EXPECT_TRUE(story.player().sees("Payouts from investments in film productions"));
  const WorldState& world = story.world();
  ASSERT_EQ(world.saveAllRoyaltyPayouts.size(), 1U);
  const RoyaltyPayout& royalty = world.saveAllRoyaltyPayouts.front();
  const double share = grossOfRun(world, lead) * 0.02;
  EXPECT_EQ(royalty.weekNumberForTracking, settlement);
  EXPECT_NEAR(royalty.payout, share * (1 - commission), 1e-3);
  EXPECT_NEAR(world.saveAllTalentAgents.front().totalAgentEarnings, share * commission, 1e-3);
  ASSERT_EQ(world.saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(world.saveAllEquityPayouts.front().weekNumberForTracking, settlement);
  EXPECT_NEAR(world.saveAllEquityPayouts.front().payOut, grossOfRun(world, own) * 0.1, 1e-3);
  story.player().press("Close");
}

// The title's own page tells of its dealings with networks.
void isToldOnItsPage(Story& story, const std::string& network, const std::string& words) {
  story.player().press("Work");
  story.player().press("Auditions");
  story.player().press("Releases");
  story.player().press("Salt Road");
  EXPECT_TRUE(story.player().sees(network));
  EXPECT_TRUE(story.player().sees(words));
  story.player().press("Back");
  story.player().press("Back");
}

void isSoldToANetwork(Story& story, const Struck& deal) {
  const WorldState& world = story.world();
  EXPECT_EQ(deal.week, story.now());
  EXPECT_GE(deal.week, release + 29 + 4);
  EXPECT_TRUE(story.player().sees(deal.network));
  EXPECT_TRUE(story.player().sees("ROYALTY"));
  const auto share = std::ranges::find(world.saveAllRoyaltyPayouts, payoutSource::syndication,
                                       &RoyaltyPayout::typeOfPayment);
  ASSERT_NE(share, world.saveAllRoyaltyPayouts.end());
  EXPECT_EQ(share->weekNumberForTracking, deal.week);
  EXPECT_EQ(share->syndicationName, deal.network);
  EXPECT_EQ(share->syndicationYears, deal.years);
  EXPECT_NEAR(share->payout, deal.price * 0.02 * (1 - commission), 1e-3);
  story.player().press("Close");
  isToldOnItsPage(story, deal.network, std::format("On the air, {} weeks left", deal.years * 52 - 1));
}

// A check every twelfth week of the term, each by a rate that lost a tenth a year.
void paysResidualsToTheEndOfTheTerm(Story& story, const Struck& deal) {
  const std::int64_t end = deal.week + deal.years * 52;
  story.liveUntil(end);
  EXPECT_FALSE(story.title(lead)->didAcceptOffer);
  EXPECT_EQ(story.title(lead)->networkNameSigned, std::vector<std::string>{deal.network});
  std::vector<WeeklyEarnings> checks = story.earningsOf(lead);
  checks.erase(checks.begin());  // the session
  std::size_t next = 0;
  for (std::int64_t week = deal.week; week < end; ++week) {
    if ((end - week) % 12 != 0) continue;
    ASSERT_LT(next, checks.size()) << week;
    const std::int64_t age = week - release;
    const double years = age < 53 ? 0 : static_cast<double>(age / 52);
    EXPECT_EQ(checks[next].weekNumberForTracking, week);
    EXPECT_NEAR(checks[next].residualsEarned, 0.05 * std::pow(0.9, years) * fee * (1 - 0.03 - commission),
                1e-9);
    next += 1;
  }
  EXPECT_EQ(next, checks.size());
  story.player().press("Close");
  isToldOnItsPage(story, deal.network, std::format("Ran for {} year", deal.years));
}

TEST(ReceptionAndMoney, ATitlePaysForTheWorkForTheStakeAndForYearsOnTheNetworks) {
  Story story(3);
  getsPaidForTheWork(story);
  isReviewed(story);
  const Film released = story.film(lead);
  isSettledAtTheBoxOffice(story);
  story.restart();
  const Struck deal = story.liveUntilSold(lead, 3 * 52);
  EXPECT_NE(story.film(lead).lastWeekPopularity, released.currentPopularity);
  EXPECT_EQ(story.film(lead).imbdMetascore, released.imbdMetascore);
  isSoldToANetwork(story, deal);
  story.restart();
  paysResidualsToTheEndOfTheTerm(story, deal);

  // Nothing came to the cash but through a record, and nothing to the agent but by commission.
  const WorldState& world = story.world();
  EXPECT_NEAR(world.totalCashAvailable, story.books_.balance(), 0.005);
  double agents = 0;
  for (const RoyaltyPayout& royalty : world.saveAllRoyaltyPayouts) agents += royalty.agentEarnings;
  agents += story.books_.residuals / (1 - 0.03 - commission) * commission;
  EXPECT_NEAR(world.saveAllTalentAgents.front().totalAgentEarnings, agents, 0.005);

  story.player().press("Wealth");
  story.player().press("Payments");
  story.player().press("Residuals");
  EXPECT_TRUE(story.player().sees("Salt Road"));
  EXPECT_FALSE(story.player().sees("Own Goal"));
}

}  // namespace
}  // namespace tb
