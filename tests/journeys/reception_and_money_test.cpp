// Two titles from the wrap to syndication: pay, promotion, release, reviews, popularity, box office, and
// residuals for years.

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

// A guild member with an agent has a lead with a royalty and an own production, both with a top director and
// high hype.
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

// A closed deal.
struct Struck {
  std::int64_t week = 0;
  double price = 0;
  std::int64_t years = 0;
  std::string network;
};

struct TitleIncomeJourney : testing::Test {
  test::SeededRandom random{3};
  test::Device device{random};
  test::Books books;

  test::Player& player() { return device.player(); }
  const WorldState& world() const { return device.world(); }
  std::int64_t now() const { return world().weekNumberForTracking; }

  // Ends a week, leaves its summary open, and compares the cash with the books to the cent.
  void endWeek() {
    const double cash = world().totalCashAvailable;
    const double balance = books.balance();
    device.endWeek();
    books.addTheWeek(world());
    EXPECT_NEAR(world().totalCashAvailable - cash, books.balance() - balance, 0.005) << "week " << now();
  }
  // Plays until the summary of that week is open. Relaunches each week, so a week must not need state that is
  // not saved.
  void playUntil(std::int64_t week) {
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
  // Plays until a network has bought the title; the summary of that week is open.
  Struck playUntilSold(std::int64_t filmId, std::int64_t lastWeek) {
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
  // The gross of the whole run in all markets.
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

void TitleIncomeJourney::getsPaidForTheWorkAndPromotesIt() {
  playUntil(wrap + 1);
  player().expectSees({"SESSIONS"});
  const auto sessions = earningsOf(lead);
  ASSERT_EQ(sessions.size(), 1U);
  EXPECT_EQ(sessions.front().weekNumberForTracking, wrap + 1);
  EXPECT_NEAR(sessions.front().sessionEarned, fee * 0.94, 1e-9);  // dues are deducted twice
  player().follow({"Close", "Work", "Auditions", "Releases", "Salt Road", "PROMOTE"});
  // Leaving without an answer loses the energy, so every way to leave asks first.
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

void TitleIncomeJourney::isReviewed() {
  playUntil(release + 1);
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

void TitleIncomeJourney::isSettledAtTheBoxOffice() {
  playUntil(settlement);
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

// The title's page shows its syndication.
void TitleIncomeJourney::isToldOnItsPage(const std::string& network, const std::string& words) {
  player().follow({"Close", "Work", "Auditions", "Releases", "Salt Road"});
  player().expectSees({network, words});
  player().follow({"Back", "Back"});
}

void TitleIncomeJourney::isSoldToANetwork(const Struck& deal) {
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

// A residual every twelfth week of the term, with a rate that falls by a tenth per year.
void TitleIncomeJourney::paysResidualsToTheEndOfTheTerm(const Struck& deal) {
  const std::int64_t end = deal.week + deal.years * 52;
  playUntil(end);
  EXPECT_FALSE(title(lead)->didAcceptOffer);
  EXPECT_EQ(title(lead)->networkNameSigned, std::vector<std::string>{deal.network});
  std::vector<WeeklyEarnings> checks = earningsOf(lead);
  checks.erase(checks.begin());  // the session fee
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

TEST_F(TitleIncomeJourney, PaysSessionsStakesAndSyndication) {
  device.begin(prepare);
  getsPaidForTheWorkAndPromotesIt();
  isReviewed();
  isSettledAtTheBoxOffice();
  device.launch();
  const Struck deal = playUntilSold(lead, 3 * 52);
  isSoldToANetwork(deal);
  device.launch();
  paysResidualsToTheEndOfTheTerm(deal);

  // All cash came through records, and the agent got commissions only.
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
