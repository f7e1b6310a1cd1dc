// Offers from their e-mail to their end: agents, negotiations, stakes, sagas and investments.

#include <algorithm>
#include <gtest/gtest.h>

#include "career/agent_contract.h"
#include "career/franchise_offer.h"
#include "career/renewal_negotiation.h"
#include "career/royalty_stake.h"
#include "core/signed_agent.h"
#include "social/inbox.h"
#include "tests/journeys/device.h"
#include "wealth/angel_investing.h"
#include "week/end_week.h"

namespace tb {
namespace {

// A random source whose draws are all at the same level of their range, from 0 (lowest) to 1 (highest).
class LevelRandom : public RandomSource {
 public:
  std::uint64_t next() override { return word_; }
  void setLevel(double level) {
    // Zeros at the end of a word can be rejected, and the next one would be the same.
    word_ = level >= 1 ? ~std::uint64_t{0} : static_cast<std::uint64_t>(level * 0x1p64) | 0xFFFFF;
  }

 private:
  std::uint64_t word_ = 1;
};

constexpr std::int64_t startWeek = 10;

void setTalent(WorldState& world, std::int64_t points) {
  world.talentTrait1 = world.talentTrait2 = world.talentTrait3 = world.talentTrait4 = world.talentTrait5 =
      points;
}

// Adds old leads, so that producers and studios know the performer.
void addOldLeads(WorldState& world, std::int64_t count) {
  for (std::int64_t id = 1; id <= count; ++id) {
    Audition role = test::bookedLead(id, filmType::shortFilm, "Old Work " + std::to_string(id));
    role.funnelStage = funnel::wrapped;
    role.weekToWork = role.weekReleased = -100;
    role.sourceId = 0;
    world.saveAllAuditionList.push_back(std::move(role));
  }
}

// A released season and the next one, which is booked.
void addSeries(WorldState& world, std::int64_t id, const std::string& title) {
  Audition first = test::bookedLead(id, filmType::series, title);
  first.royalty = 0;
  first.seasonNumber = 1;
  first.funnelStage = funnel::wrapped;
  first.weekToWork = first.weekReleased = -100;
  Audition second = first;
  second.filmId = id + 1;
  second.parentSeriesFilmId = id;
  second.seasonNumber = 2;
  second.funnelStage = funnel::booked;
  second.payment = 10'000;
  second.weekToWork = 90;
  second.weekReleased = 100;
  world.saveAllAuditionList.push_back(std::move(first));
  world.saveAllAuditionList.push_back(std::move(second));
}

struct OffersJourney : testing::Test {
  LevelRandom random;
  test::Device device{random};

  OffersJourney() {
    device.begin([](WorldState& world) {
      world.isSAG = 1;
      world.workDuesPaidSAG = 750'000;
      world.weekNumber = world.weekNumberForTracking = startWeek;
      world.experience = 5'000;
      world.filmId = 500;
      world.totalCashAvailable = 1e9;
      world.agentFanBonus = 1;
      setTalent(world, 65);
      addOldLeads(world, 30);
      world.saveAllEmailList = {{.id = 7, .typeOfDeal = deal::franchise, .title = "A saga for you"}};
      addSeries(world, 101, "Saltwater");
      addSeries(world, 201, "Night Desk");
    });
  }

  test::Player& player() { return device.player(); }
  const WorldState& world() const { return device.world(); }

  // Plays weeks at a level until the year's week is `week`; the last summary is closed.
  void playTo(std::int64_t week, double level) {
    random.setLevel(level);
    while (world().weekNumber != week) device.playWeeks();
  }
  void openMail(const std::string& title) {
    player().follow({"Social", "Inbox"});
    player().press(title);
  }
  const Email& newestMail() const { return world().saveAllEmailList.back(); }
  const Audition& newestProject() const { return world().saveAllAuditionList.back(); }

  void signTheAgent() {
    random.setLevel(0);
    device.endWeek();
    player().expectSees({"You received an email from a talent agent."});
    player().press("Close");
    EXPECT_TRUE(player().sees("You have mail"));
    ASSERT_EQ(newestMail().typeOfDeal, deal::agent);
    openMail(newestMail().title);
    player().expectSees({"TERMS", "Commission | 15%", "Sends work | every 6 weeks", "Largest budget | $12.0M",
                         "Fans gained | × 1.20", "Release before its end | $100,000"});
    player().press("Sign");
    EXPECT_EQ(world().agentCommission, 0.15);
    EXPECT_NEAR(world().agentResidualBonus, 0.0075, 1e-9);
    EXPECT_NEAR(world().agentFanBonus, 1.2, 1e-9);
    EXPECT_EQ(currentAgent(world())->weekContractEnds, startWeek + 1 + 104);
    EXPECT_EQ(world().saveAllEmailList.size(), 1u);
  }

  // The agent's sixth weeks, at the levels of a submission, an audition and a booking.
  void receiveWork() {
    for (const auto& [week, level, stage] :
         {std::tuple{12, 0.99, funnel::submitted}, {18, 0.2, funnel::invited}, {24, 0.0, funnel::booked}}) {
      playTo(week - 1, 0.6);
      const std::size_t before = world().saveAllAuditionList.size();
      playTo(week, level);
      ASSERT_EQ(world().saveAllAuditionList.size(), before + 1) << week;
      EXPECT_EQ(newestProject().funnelStage, stage);
      EXPECT_EQ(newestProject().source, currentAgent(world())->agency);
    }
    EXPECT_EQ(currentAgent(world())->bookings, 3);
  }

  void negotiate(std::int64_t filmId, const std::string& title, double level) {
    random.setLevel(level);
    player().follow({"Work", "Auditions", "Bookings", title + " Season 2", "Negotiate"});
    player().expectSees(
        {"You are being offered a $1,000 increase from last season", "| 100% Chance + 5% Agent Bonus"});
    player().follow({"Ask for more", "Ask for more", "Ask for less", "Ask for more"});
    player().expectSees({"| 80% Chance + 5% Agent Bonus"});
    player().press(player().page().main.front().label);
    const bool won = level < 0.5;
    player().expectTold(won ? "🤝 Success! ✅" : "❌ Negotiation Failed! ❌");
    const auto project = std::ranges::find(world().saveAllAuditionList, filmId, &Audition::filmId);
    EXPECT_DOUBLE_EQ(project->payment, won ? 12'000 : 10'000);
    EXPECT_FALSE(player().sees("Negotiate"));
    player().press("Home");
  }

  // A producer's film, from the e-mail to its payout.
  void investInAFilm() {
    random.setLevel(0.99);
    for (int week = 0; week < 60 && newestInvestorMail() == nullptr; ++week) device.playWeeks();
    ASSERT_NE(newestInvestorMail(), nullptr);
    random.setLevel(0.5);
    openMail(newestInvestorMail()->title);
    const double cash = world().totalCashAvailable;
    const InvestmentTalks talks = beginInvestmentTalks(world(), world().passEmailId);
    player().follow({"Larger stake", "Larger stake"});
    player().expectSees({"| 80% Chance + 5% Agent Bonus"});
    player().press("OFFER");
    player().expectTold("💰🤝 Locked In 🤝💰");
    player().press("Home");
    const Audition film = newestProject();
    EXPECT_EQ(film.equityPercentage, static_cast<double>(talks.baseEquityPercentage + 2));
    EXPECT_DOUBLE_EQ(film.equityDollarsInvested, talks.filmBudget * film.equityPercentage / 100);
    EXPECT_DOUBLE_EQ(world().totalCashAvailable, cash - film.equityDollarsInvested);
    while (world().weekNumberForTracking <= film.weekReleased + 8) device.playWeeks();
    double gross = 0;
    for (const BoxOffice& market : world().saveAllBoxOfficeList) {
      if (market.filmId == film.filmId) gross += market.totalGross;
    }
    EXPECT_GT(gross, 0);
    EXPECT_NEAR(returnsOf(world(), film.filmId).boxOffice, gross * film.equityPercentage / 100, 0.01);
  }

 private:
  [[nodiscard]] const Email* newestInvestorMail() const {
    const auto mail = std::ranges::find(world().saveAllEmailList, deal::investment, &Email::typeOfDeal);
    return mail == world().saveAllEmailList.end() ? nullptr : &*mail;
  }
};

TEST_F(OffersJourney, OfACareerWithAnAgent) {
  signTheAgent();
  if (HasFatalFailure()) return;
  receiveWork();
  if (HasFatalFailure()) return;
  negotiate(102, "Saltwater", 0);
  playTo(25, 0.6);
  negotiate(202, "Night Desk", 1);

  // A role with a stake, in the 26th week.
  playTo(26, 0.6);
  playTo(27, 0.99);
  ASSERT_EQ(newestMail().typeOfDeal, deal::royalty);
  random.setLevel(0.5);
  openMail(newestMail().title);
  player().press("Negotiate");
  player().expectTold("🎬 Booked 🎬");
  EXPECT_NEAR(newestProject().royalty, 0.3, 1e-9);  // from 0.25 to 0.35 percent
  EXPECT_EQ(newestProject().payment, 0);
  player().press("Home");

  // The lead of a saga, its release, and the sequel eleven weeks later.
  random.setLevel(0.5);
  openMail("A saga for you");
  const Audition offer = *franchiseOffer(world(), 7);
  player().press("Take the lead");
  EXPECT_EQ(newestProject().title, offer.title);
  EXPECT_EQ(newestProject().payment, offer.payment);
  player().press("Home");
  const std::int64_t saga = newestProject().filmId;
  const auto sagaFilms = [&] {
    return std::ranges::count(world().saveAllAuditionList, offer.franchiseId, &Audition::franchiseId);
  };
  random.setLevel(0.9);
  for (int week = 0; week < 80 && sagaFilms() == 1; ++week) {
    const auto film = std::ranges::find(world().saveAllFilmList, saga, &Film::filmId);
    const bool isRated = film != world().saveAllFilmList.end() && film->imbdRating > 0;
    random.setLevel(isRated ? 0 : 0.9);  // the lowest verdict orders a sequel
    device.playWeeks();
  }
  ASSERT_EQ(sagaFilms(), 2);
  const auto sequel = std::ranges::find_if(world().saveAllAuditionList, [&](const Audition& project) {
    return project.franchiseId == offer.franchiseId && project.franchise == 2;
  });
  EXPECT_EQ(sequel->seasonNumber, 2);
  EXPECT_EQ(sequel->funnelStage, funnel::booked);

  investInAFilm();
  if (HasFatalFailure()) return;

  // Released a week before the contract's end, the agent costs the penalty.
  const TalentAgent agent = *currentAgent(world());
  const double cash = world().totalCashAvailable;
  const bool isEarly = agent.weekContractEnds > world().weekNumberForTracking;
  player().follow({"Work", "Talent Agent", "Release"});
  player().press("Release");
  EXPECT_EQ(world().totalCashAvailable, cash - (isEarly ? 100'000 : 0));
  EXPECT_EQ(world().agentCommission, 0);
  EXPECT_EQ(world().agentFanBonus, 1);
  EXPECT_EQ(currentAgent(world()), nullptr);
}

// --- Many careers ---

// A performer whom everybody wants, and who answers every e-mail.
class Answering {
 public:
  explicit Answering(std::uint64_t seed) : random_(seed) {
    WorldState& world = game_.world;
    world.enterPlayerDetails = world.isSAG = 1;
    world.myName = "Ada Quinn";
    world.agentFanBonus = 1;
    world.workDuesPaidSAG = 750'000;
    world.experience = 10'000;
    world.totalCashAvailable = 1e12;
    world.filmId = 500;
    setTalent(world, 70 + static_cast<std::int64_t>(seed % 20));
    addOldLeads(world, 25);
  }

  void playAWeek() {
    game_.world.saveFameLevel = 80;
    endWeek(game_);
    (void)openSummary(game_);
    closeSummary(game_);
    refreshHub(game_, HubRefresh::worldChanged);
    EXPECT_LE(game_.world.saveAllEmailList.size(), inboxCapacity);
    // Some weeks go by unanswered, so that offers pile up.
    if (game_.world.weekNumber % 26 == 0) answerAll();
    negotiateAll();
  }

  [[nodiscard]] int taken(std::int64_t typeOfDeal) const {
    return taken_[static_cast<std::size_t>(typeOfDeal)];
  }
  [[nodiscard]] int negotiated() const { return negotiated_; }

 private:
  void answerAll() {
    game_.world.totalEnergyAvailable = 1'000'000;
    const List<Email> emails = game_.world.saveAllEmailList;
    for (const Email& email : emails) {
      const bool isTaken = answer(email);
      taken_[static_cast<std::size_t>(email.typeOfDeal)] += isTaken ? 1 : 0;
      if (isTaken) EXPECT_EQ(emailWith(game_.world, email.id), nullptr) << email.title;
    }
  }

  bool answer(const Email& email) {
    switch (email.typeOfDeal) {
      case deal::agent:
        EXPECT_NE(offeringAgent(game_.world, email.id), nullptr) << "an offer that leads nowhere";
        if (RandomRange(random_, 3) == 0) releaseAgent(game_);
        return !signAgent(game_, email.id);
      case deal::investment:
        makeOpportunity(game_, email.id);
        EXPECT_NE(opportunity(game_.world, email.id), nullptr) << "an offer that leads nowhere";
        return offerInvestment(game_, beginInvestmentTalks(game_.world, email.id)).isFinal;
      case deal::royalty:
        drawStakeOffer(game_, email.id);
        return stakeOffer(game_.world, email.id) != nullptr && negotiateStake(game_, email.id, 0).isFinal;
      default:
        drawFranchiseOffer(game_, email.id);
        return !acceptFranchise(game_, email.id).empty();
    }
  }

  void negotiateAll() {
    const List<Audition>& projects = game_.world.saveAllAuditionList;
    for (std::size_t index = 0; index < projects.size(); ++index) {
      if (!isNegotiationOffered(game_.world, projects[index])) continue;
      game_.world.totalEnergyAvailable = renewalNegotiationEnergy;
      negotiated_ += negotiateRenewal(game_, beginRenewalTalks(game_.world, projects[index])).isFinal ? 1 : 0;
    }
  }

  test::SeededRandom random_;
  test::MemoryPort port_;
  SaveStore store_{port_};
  Game game_{.store = store_, .random = random_};
  std::array<int, 5> taken_ = {};
  int negotiated_ = 0;
};

TEST(ManyCareers, MeetEveryKindOfOffer) {
  constexpr std::uint64_t careers = 20;
  constexpr int weeks = 10 * 52;
  for (std::uint64_t seed = 1; seed <= careers; ++seed) {
    SCOPED_TRACE(seed);
    Answering career(seed);
    for (int week = 0; week < weeks; ++week) career.playAWeek();
    for (const std::int64_t kind : {deal::agent, deal::investment, deal::royalty, deal::franchise}) {
      EXPECT_GT(career.taken(kind), 0) << kind;
    }
    EXPECT_GT(career.negotiated(), 0);
  }
}

}  // namespace
}  // namespace tb
