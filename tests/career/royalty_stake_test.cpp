// A stake instead of pay: the offer, the ask, the deal, and its screen.

#include "career/royalty_stake.h"

#include <gtest/gtest.h>

#include "film/catalogue.h"
#include "screens/work/royalty_view_controller.h"
#include "tests/journeys/device.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

constexpr std::int64_t mail = 77;

const TalentAgent signedOne{.id = 5,
                            .name = "Rosa Vance",
                            .agency = "Northlight",
                            .royaltyBonus = 1.25,
                            .negotiationBonus = 6,
                            .isSigned = 1};

struct Stake : test::RuleTest {
  Stake() {
    world.isSAG = 1;
    world.filmId = 40;
    world.weekNumberForTracking = 20;
    world.totalEnergyAvailable = 60;
    world.saveAllTalentAgents = {{.id = 4, .royaltyBonus = 1.8}, signedOne};
    world.saveAllEmailList = {{.id = 76, .typeOfDeal = deal::royalty}, {.id = mail}};
  }

  // A project of the first row, a feature film, with a beginner for a director.
  const Audition& make(double share) {
    world.stakeOffers.clear();
    random.unit(share).range(std::ssize(royaltyMovies()), 0).any(16);
    makeStakeOffer(game, mail);
    return *stakeOffer(world, mail);
  }
  // Weeks, preparation and the words of a deal: the audition in 5 weeks, the shoot 10 weeks later.
  void scriptDeal() { random.range(14, 3).range(17, 6).any(10).range(30, 0); }
};

TEST_F(Stake, OffersAPartForAQuarterPercentToTheAgentsBonusAndNothingElse) {
  EXPECT_EQ(make(0).royalty, 0.25);
  EXPECT_EQ(make(1).royalty, 1.25);
  const Audition offer = make(0.5);
  EXPECT_EQ(offer.title, royaltyMovies().front().title);
  EXPECT_EQ(offer.isPrincipal, rolePart::principal);
  EXPECT_EQ(offer.isUnion, 1);
  EXPECT_EQ(offer.payment + offer.buyout + offer.residual, 0);
  EXPECT_EQ(offer.budget, 100'000);
  makeStakeOffer(game, mail);  // the same when it is opened again
  EXPECT_EQ(*stakeOffer(world, mail), offer);
  for (const double weak : {0.0, 0.25}) {
    world.saveAllTalentAgents.edit(1).royaltyBonus = weak;
    EXPECT_EQ(make(1).royalty, 0.35);
  }
}

TEST_F(Stake, IsNotOnOfferWithoutItsMailOrAnAgent) {
  makeStakeOffer(game, 78);
  EXPECT_EQ(stakeOffer(world, 78), nullptr);
  make(0.5);
  world.saveAllTalentAgents.edit(1).isSigned = 0;
  EXPECT_EQ(stakeOffer(world, mail), nullptr);
}

TEST_F(Stake, AMoreDaringAskIsWonLessOften) {
  const Audition& offer = make(1);
  EXPECT_EQ(percentAsked(offer, 0), 1.25);
  EXPECT_NEAR(percentAsked(offer, 4), 1.75, 1e-12);
  EXPECT_EQ(percentAsked(offer, mostStakeSteps), 2.5);
  EXPECT_EQ(chanceOfNegotiation(0), 100);
  EXPECT_EQ(chanceOfNegotiation(4), 60);
  EXPECT_EQ(chanceOfNegotiation(mostStakeSteps), 0);
}

TEST_F(Stake, TheAgentsBonusTurnsTheRollsNextToTheChance) {
  struct Case {
    std::int64_t steps, bonus, roll;
    bool wins;
  };
  const Case cases[] = {{0, 0, 98, true},  {0, 0, 99, false}, {0, 1, 99, true}, {5, 6, 54, true},
                        {5, 6, 55, false}, {10, 6, 4, true},  {10, 6, 5, false}};
  for (const Case& each : cases) {
    world.saveAllEmailList = {{.id = 76}, {.id = mail}};
    world.saveAllTalentAgents.edit(1).negotiationBonus = each.bonus;
    world.totalEnergyAvailable = 25;
    make(0);
    random.range(100, each.roll);
    if (each.wins) scriptDeal();
    const StakeAnswer answer = negotiateStake(game, mail, each.steps);
    EXPECT_TRUE(answer.isFinal);
    EXPECT_EQ(answer.notice.title, each.wins ? "🎬 Booked 🎬" : "❌ Negotiation Failed! ❌") << each.roll;
    EXPECT_EQ(world.totalEnergyAvailable, 0);
    // Either answer takes the mail and no other.
    EXPECT_EQ(world.saveAllEmailList, (List<Email>{{.id = 76}}));
    EXPECT_TRUE(world.stakeOffers.empty());
  }
  EXPECT_EQ(world.saveAllAuditionList.size(), 4U);  // as many as were won
}

TEST_F(Stake, SuccessBooksTheRoleFromTheWeekOfTheSignature) {
  const std::string title = make(0).title;
  world.weekNumberForTracking = 90;  // the mail waited
  random.range(100, 0);
  scriptDeal();
  const StakeAnswer answer = negotiateStake(game, mail, 2);
  ASSERT_EQ(world.saveAllAuditionList.size(), 1U);
  const Audition& project = world.saveAllAuditionList.front();
  EXPECT_EQ(project.filmId, 41);
  EXPECT_EQ(project.funnelStage, funnel::booked);
  EXPECT_NEAR(project.royalty, 0.3, 1e-12);
  EXPECT_EQ(project.source, "Northlight");
  EXPECT_EQ(project.sourceId, 5);
  EXPECT_EQ(project.weekSubmitted, 90);
  EXPECT_EQ(project.weekAudition, 95);
  EXPECT_EQ(project.weekToWork, 105);
  EXPECT_EQ(project.weekReleased, 113);
  EXPECT_GT(project.rehearsalRating, 0);
  const std::string line = "You just signed onto " + title + " with a 0.30% royalty stake — roll cameras.";
  EXPECT_EQ(answer.notice.message, "\n" + line);
  expectToldInTheLogAlone(line);
}

TEST_F(Stake, WithoutTheEnergyTheOfferStands) {
  make(0);
  world.totalEnergyAvailable = 24;
  const StakeAnswer answer = negotiateStake(game, mail, 0);
  EXPECT_FALSE(answer.isFinal);
  EXPECT_EQ(answer.notice.title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_NE(stakeOffer(world, mail), nullptr);
  EXPECT_EQ(world.totalEnergyAvailable, 24);
}

// A desk with the mail on it.
class Desk : public Screen {
 public:
  void load(Stage& stage) override { stage.game().world.passEmailId = mail; }
  view::Page view(const Game&) override {
    const auto open = [](Stage& stage) { stage.open(std::make_unique<RoyaltyViewController>()); };
    return {.title = "Desk", .nodes = {view::Button{.label = "Open", .press = open}}};
  }
};

TEST(RoyaltyScreen, TheAskIsRaisedLoweredAndPutToTheTeamOnce) {
  test::MemoryPort port;
  SaveStore store(port);
  test::SeededRandom random(11);
  test::storeCareer(store, random, [](WorldState& world) {
    world.saveAllTalentAgents = {signedOne};
    world.saveAllEmailList = {{.id = mail, .typeOfDeal = deal::royalty, .message = "No fee. Hear me out."}};
  });
  App app(store, random, {}, std::make_unique<Desk>());
  test::Player player(app);
  player.press("Open");
  const Audition offer = *stakeOffer(app.game().world, mail);
  EXPECT_EQ(player.title(), offer.title);
  player.expectSees(
      {"No fee. Hear me out.", "They agree: 100% Chance + 6% Agent Bonus", "This is what they offer"});
  for (int step = 0; step < mostStakeSteps; ++step) player.press("Ask for more");
  player.expectSees({"They agree: 0% Chance + 6% Agent Bonus", "Nobody has ever asked for more"});
  for (int step = 0; step < mostStakeSteps; ++step) player.press("Ask for less");

  player.follow({"Back", "Open"});
  EXPECT_EQ(*stakeOffer(app.game().world, mail), offer);
  player.press("Negotiate");
  player.expectTold("🎬 Booked 🎬");
  EXPECT_EQ(player.title(), "Desk");
  EXPECT_EQ(app.game().world.saveAllAuditionList.back().title, offer.title);
  player.press("Open");
  player.expectSees({"This offer is not on the table anymore."});
}

}  // namespace
}  // namespace tb
