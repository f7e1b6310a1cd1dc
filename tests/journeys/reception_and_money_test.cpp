// Two titles from the wrap to syndication: pay, promotion, release, reviews, popularity, box office, and
// residuals for years.

#include <format>
#include <gtest/gtest.h>

#include "core/find.h"
#include "tests/journeys/books.h"
#include "tests/journeys/device.h"

namespace tb {
namespace {

constexpr std::int64_t lead = 1;  // filmId
constexpr std::int64_t wrap = 1;
constexpr std::int64_t release = 3;
constexpr std::int64_t settlement = release + 8;

// A guild member with an agent has a lead with a royalty and an own production, both with a top director and
// high hype.
void bookTwoProjects(WorldState& world) {
  world.isSAG = 1;
  world.agentCommission = 0.1;
  world.saveAllTalentAgents = {{.id = 5, .name = "Rosa Vance", .commissionPercentage = 0.1, .isSigned = 1}};
  Audition role = test::bookedLead(lead, filmType::feature, "Salt Road");
  role.residual = 0.05;
  role.sourceId = 5;
  for (Audition project : {role, test::ownProduction(2, "Own Goal")}) {
    project.hypeRating = 110;
    project.directorRating = 110;
    world.saveAllAuditionList.push_back(std::move(project));
  }
}

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
    const auto index = find(titles, &Syndication::filmId, filmId);
    return index ? &titles[*index] : nullptr;
  }
  // Plays until a network has bought the title; the summary of that week is open.
  Syndication playUntilSold(std::int64_t filmId, std::int64_t lastWeek) {
    while (now() < lastWeek) {
      endWeek();
      const Syndication* const sold = title(filmId);
      if (sold != nullptr && sold->didAcceptOffer) return *sold;
      player().press("Close");
    }
    ADD_FAILURE() << "never sold";
    return {.networkNames = {""}, .networkYears = {0}, .networkIndexWon = 0};
  }

  void getsPaidForTheWorkAndPromotesIt();
  void isReviewed();
  void isSettledAtTheBoxOffice();
  void isToldOnItsPage(const std::string& network, const std::string& words);
  void isSoldAndPaysResiduals(const Syndication& deal);
};

void TitleIncomeJourney::getsPaidForTheWorkAndPromotesIt() {
  playUntil(wrap + 1);
  player().expectSees({"SESSIONS"});
  EXPECT_NEAR(world().saveAllWeeklyEarnings[0].sessionEarned, 9'000 * 0.94, 1e-9);  // dues are deducted twice
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
  player().expectSees({std::format("Metascore | {}", device.film(lead).imbdMetascore)});
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
  EXPECT_GT(device.film(lead).boxOfficeGross, 0);
  ASSERT_EQ(world().saveAllRoyaltyPayouts.size(), 1U);
  EXPECT_EQ(world().saveAllRoyaltyPayouts[0].weekNumberForTracking, settlement);
  ASSERT_EQ(world().saveAllEquityPayouts.size(), 1U);
  EXPECT_EQ(world().saveAllEquityPayouts[0].weekNumberForTracking, settlement);
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

// A share of the price at once, and a residual every twelfth week of the term.
void TitleIncomeJourney::isSoldAndPaysResiduals(const Syndication& deal) {
  const auto won = static_cast<std::size_t>(deal.networkIndexWon);
  const std::string& network = deal.networkNames[won];
  const std::int64_t weeks = deal.networkYears[won] * 52;
  player().expectSees({network, "ROYALTY"});
  EXPECT_EQ(deal.weekStarted, now());
  EXPECT_EQ(world().saveAllRoyaltyPayouts.back().typeOfPayment, payoutSource::syndication);
  isToldOnItsPage(network, std::format("On the air, {} weeks left", weeks - 1));
  device.launch();
  const std::int64_t paidBefore = std::ssize(world().saveAllWeeklyEarnings);
  playUntil(deal.weekStarted + weeks);
  EXPECT_FALSE(title(lead)->didAcceptOffer);
  EXPECT_EQ(title(lead)->networkNameSigned, std::vector<std::string>{network});
  EXPECT_EQ(std::ssize(world().saveAllWeeklyEarnings), paidBefore + weeks / 12);
  isToldOnItsPage(network, std::format("Ran for {} year", weeks / 52));
}

TEST_F(TitleIncomeJourney, PaysSessionsStakesAndSyndication) {
  device.begin(bookTwoProjects);
  getsPaidForTheWorkAndPromotesIt();
  isReviewed();
  isSettledAtTheBoxOffice();
  device.launch();
  isSoldAndPaysResiduals(playUntilSold(lead, 3 * 52));
  EXPECT_NEAR(world().totalCashAvailable, books.balance(), 0.005);  // all cash came through records

  player().follow({"Wealth", "Payments", "Residuals"});
  player().expectSees({"Salt Road"});
  EXPECT_FALSE(player().sees("Own Goal"));
}

}  // namespace
}  // namespace tb
