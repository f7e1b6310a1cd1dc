// The whole life of two titles as their maker sees it: wrapped, paid for, promoted, released, reviewed, in
// and out of fashion, settled at the box office, sold to a network, and still paying years later.

#include <algorithm>
#include <cmath>
#include <format>
#include <gtest/gtest.h>
#include <numeric>

#include "tests/journeys/books.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

constexpr std::int64_t lead = 1;  // filmId
constexpr std::int64_t own = 2;
constexpr std::int64_t agentId = 5;
constexpr double commission = 0.1;
constexpr double fee = 9'000;
constexpr std::int64_t wrap = 1;
constexpr std::int64_t release = 3;
constexpr std::int64_t settlement = release + 8;

// A guild member, signed by an agent who brought a lead with a share of the gross, makes a film of her own at
// the same time. Both are by a director of the first rank and much talked about.
void prepare(WorldState& world) {
  world.isSAG = 1;
  world.agentCommission = commission;
  world.saveAllTalentAgents = {
      {.id = agentId, .name = "Rosa Vance", .commissionPercentage = commission, .isSigned = 1}};
  Audition role = test::bookedLead(lead, filmType::feature, "Salt Road");
  role.residual = 0.05;
  role.sourceId = agentId;
  for (Audition project : {role, test::ownProduction(own, "Own Goal")}) {
    project.hypeRating = 110;
    project.directorRating = 110;
    world.saveAllAuditionList.push_back(std::move(project));
  }
}

// A deal as it was struck.
struct Struck {
  std::int64_t week = 0;
  double price = 0;
  std::int64_t years = 0;
  std::string network;
};

struct Titles : testing::Test {
  test::SeededRandom random{3};
  test::Device device{random};
  test::Books books;

  test::Player& player() { return device.player(); }
  const WorldState& world() const { return device.world(); }
  std::int64_t now() const { return world().weekNumberForTracking; }

  // Ends a week and leaves its summary open. The cash moves by what the books say, to the cent.
  void endWeek() {
    const double cash = world().totalCashAvailable;
    const double balance = books.balance();
    device.endWeek();
    books.addTheWeek(world());
    EXPECT_NEAR(world().totalCashAvailable - cash, books.balance() - balance, 0.005) << "week " << now();
  }
  // Stops at the summary of that week. What is on disk is all that a week needs.
  void liveUntil(std::int64_t week) {
    while (now() < week) {
      endWeek();
      if (now() == week) return;
      player().press("Close");
      if (now() < settlement) device.launch();
    }
  }

  const Syndication* title(std::int64_t filmId) const {
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

  std::vector<WeeklyEarnings> earningsOf(std::int64_t filmId) const {
    std::vector<WeeklyEarnings> found;
    std::ranges::copy_if(world().saveAllWeeklyEarnings, std::back_inserter(found),
                         [&](const WeeklyEarnings& line) { return line.filmId == filmId; });
    return found;
  }
  // The opening and the seven weeks after it, in all markets.
  double grossOfRun(std::int64_t filmId) const {
    double gross = 0;
    for (const BoxOffice& market : world().saveAllBoxOfficeList) {
      if (market.filmId != filmId) continue;
      const auto& weeks = market.boxOfficeWeeklyEarnings;
      EXPECT_EQ(weeks.size(), 7U) << market.countryName;
      gross += std::accumulate(weeks.begin(), weeks.end(), market.openingWeekend);
    }
    return gross;
  }

  void getsPaidForTheWorkAndPromotesIt();
  void isReviewed();
  void isSettledAtTheBoxOffice();
  void isToldOnItsPage(const std::string& network, const std::string& words);
  void isSoldToANetwork(const Struck& deal);
  void paysResidualsToTheEndOfTheTerm(const Struck& deal);
};

void Titles::getsPaidForTheWorkAndPromotesIt() {
  liveUntil(wrap + 1);
  player().expectSees({"SESSIONS"});
  const auto sessions = earningsOf(lead);
  ASSERT_EQ(sessions.size(), 1U);
  EXPECT_EQ(sessions.front().weekNumberForTracking, wrap + 1);
  EXPECT_NEAR(sessions.front().sessionEarned, fee * 0.94, 1e-9);  // dues are taken twice
  player().follow({"Close", "Work", "Auditions", "Releases", "Salt Road", "PROMOTE"});
  // Without an answer the energy is lost: whichever way the player leaves, that is asked about first.
  for (const char* way : {"Back", "Home"}) {
    player().press(way);
    EXPECT_EQ(player().notice(), "🎤 Leave the Show? 🎤") << way;
    player().press("Stay");
  }
  player().press("Post");
  player().expectTold("🎤 Say Something 🎤");
  player().follow({"Suggest an answer", "Post"});
  EXPECT_TRUE(player().said().contains("to the hype for Salt Road"));
  EXPECT_FALSE(player().sees("PROMOTE"));
  EXPECT_EQ(world().saveAllQuotes.size(), 1U);
  player().follow({"Back", "Back"});
}

void Titles::isReviewed() {
  liveUntil(release + 1);
  player().press("New Release");
  player().expectSees({"Salt Road", "Own Goal"});
  player().press("Imbd page of Salt Road");
  player().expectSees({std::format("Metascore: {}", device.film(lead).imbdMetascore)});
  player().follow({"Back", "Box office of Salt Road"});
  player().expectSees({"Domestic"});
  player().follow({"Back", "Back"});
  EXPECT_FALSE(player().sees("New Release"));
  EXPECT_EQ(world().saveAllChirpList.back().chirpName, "Box Office Jojo");
  player().follow({"Close", "Work", "Box Office"});
  player().expectSees({"IN THEATERS"});
  player().press("Salt Road");
  player().expectSees({"Eight-week box office performance is based on ticket sales."});
  player().follow({"Back", "Back"});
}

void Titles::isSettledAtTheBoxOffice() {
  liveUntil(settlement);
  player().expectSees({"Royalties from media where you took a stake rather than payment",
                       "Payouts from investments in film productions"});
  const double gross = grossOfRun(lead);
  EXPECT_GT(gross, 0);
  EXPECT_NEAR(device.film(lead).boxOfficeGross, gross, 1e-3);
  ASSERT_EQ(world().saveAllRoyaltyPayouts.size(), 1U);
  const RoyaltyPayout& royalty = world().saveAllRoyaltyPayouts.front();
  EXPECT_EQ(royalty.weekNumberForTracking, settlement);
  EXPECT_NEAR(royalty.payout, gross * 0.02 * (1 - commission), 1e-3);
  ASSERT_EQ(world().saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(world().saveAllEquityPayouts.front().weekNumberForTracking, settlement);
  EXPECT_NEAR(world().saveAllEquityPayouts.front().payOut, grossOfRun(own) * 0.1, 1e-3);
  player().follow({"Close", "Work", "Box Office"});
  player().expectSees({"Nothing in theaters"});
  player().press("Yours");
  player().expectSees({". Salt Road"});
  player().press("Back");
}

// The title's own page tells of its dealings with networks.
void Titles::isToldOnItsPage(const std::string& network, const std::string& words) {
  player().follow({"Close", "Work", "Auditions", "Releases", "Salt Road"});
  player().expectSees({network, words});
  player().follow({"Back", "Back"});
}

void Titles::isSoldToANetwork(const Struck& deal) {
  EXPECT_EQ(deal.week, now());
  EXPECT_GE(deal.week, release + 29 + 4);
  player().expectSees({deal.network, "ROYALTY"});
  const auto share = std::ranges::find(world().saveAllRoyaltyPayouts, payoutSource::syndication,
                                       &RoyaltyPayout::typeOfPayment);
  ASSERT_NE(share, world().saveAllRoyaltyPayouts.end());
  EXPECT_EQ(share->weekNumberForTracking, deal.week);
  EXPECT_NEAR(share->payout, deal.price * 0.02 * (1 - commission), 1e-3);
  isToldOnItsPage(deal.network, std::format("On the air, {} weeks left", deal.years * 52 - 1));
}

// A check every twelfth week of the term, each by a rate that lost a tenth a year.
void Titles::paysResidualsToTheEndOfTheTerm(const Struck& deal) {
  const std::int64_t end = deal.week + deal.years * 52;
  liveUntil(end);
  EXPECT_FALSE(title(lead)->didAcceptOffer);
  EXPECT_EQ(title(lead)->networkNameSigned, std::vector<std::string>{deal.network});
  std::vector<WeeklyEarnings> checks = earningsOf(lead);
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
  isToldOnItsPage(deal.network, std::format("Ran for {} year", deal.years));
}

TEST_F(Titles, PayForTheWorkForTheStakeAndForYearsOnTheNetworks) {
  device.begin(prepare);
  getsPaidForTheWorkAndPromotesIt();
  isReviewed();
  isSettledAtTheBoxOffice();
  device.launch();
  const Struck deal = liveUntilSold(lead, 3 * 52);
  isSoldToANetwork(deal);
  device.launch();
  paysResidualsToTheEndOfTheTerm(deal);

  // Nothing came to the cash but through a record, and nothing to the agent but by commission.
  EXPECT_NEAR(world().totalCashAvailable, books.balance(), 0.005);
  double agents = 0;
  for (const RoyaltyPayout& royalty : world().saveAllRoyaltyPayouts) agents += royalty.agentEarnings;
  agents += books.residuals / (1 - 0.03 - commission) * commission;
  EXPECT_NEAR(world().saveAllTalentAgents.front().totalAgentEarnings, agents, 0.005);

  player().follow({"Wealth", "Payments", "Residuals"});
  player().expectSees({"Salt Road"});
  EXPECT_FALSE(player().sees("Own Goal"));
}

}  // namespace
}  // namespace tb
