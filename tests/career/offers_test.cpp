// The offers by e-mail, the saga, and the negotiation of a renewal.

#include <gtest/gtest.h>

#include "career/email_offers.h"
#include "career/franchise_offer.h"
#include "career/renewal_negotiation.h"
#include "core/find.h"
#include "film/catalogue.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct EmailOffers : test::RuleTest {
  void makeReady(std::size_t roles) {
    world.saveAllAuditionList.clear();
    for (std::size_t id = 1; id <= roles; ++id) {
      world.saveAllAuditionList.push_back(
          {.filmId = static_cast<std::int64_t>(id), .isPrincipal = 1, .funnelStage = funnel::booked});
    }
    world.myName = "Ada Quinn";
    world.saveFameLevel = 61;
    world.saveAllTalentAgents = {{.id = 8}, {.id = 9, .isSigned = 1}};
  }
};

struct OfferCase {
  void (*step)(Game&);
  std::int64_t week;
  std::size_t roles;
  std::int64_t typeOfDeal;
  std::int64_t connectingId;
  const char* line;
};

TEST_F(EmailOffers, ArriveByRoleWeekAndChance) {
  const OfferCase cases[] = {
      {investorOfferStep, 10, 15, deal::investment, -1,
       "You received an email from a film producer seeking investment."},
      {backendOfferStep, 13, 15, deal::royalty, 9,
       "You received an email offering backend points for a role."},
      {franchiseOfferStep, 16, 25, deal::franchise, -1,
       "You received an email from a studio offering you a franchise role."},
  };
  for (const OfferCase& offer : cases) {
    const auto bodies = offer.typeOfDeal == deal::investment ? 20 : 10;
    world.saveAllEmailList.clear();
    makeReady(offer.roles - 1);
    world.weekNumber = 2 * offer.week;
    offer.step(game);
    makeReady(offer.roles);
    world.weekNumber = offer.week + 1;
    offer.step(game);
    world.weekNumber = 2 * offer.week;
    random.range(11, 5);
    offer.step(game);
    EXPECT_TRUE(world.saveAllEmailList.empty());
    random.range(11, 6).range(495'000'000, 7).any(1).range(bodies, 0).range(50, 0);
    offer.step(game);
    ASSERT_EQ(world.saveAllEmailList.size(), 1u) << offer.line;
    const Email& email = world.saveAllEmailList[0];
    EXPECT_EQ(email.id, 5'000'008);
    EXPECT_EQ(email.typeOfDeal, offer.typeOfDeal);
    EXPECT_EQ(email.connectingId, offer.connectingId);
    EXPECT_TRUE(email.title.contains("Ada Quinn")) << email.title;
    expectToldInBothLists(offer.line);
  }
}

TEST_F(EmailOffers, RolesThroughTheAgentNeedOneAndSagasNeedFame) {
  makeReady(25);
  world.weekNumber = 16;
  world.saveFameLevel = 60;
  franchiseOfferStep(game);
  world.saveFameLevel = 61;
  world.saveAllTalentAgents.edit(1).isSigned = 0;
  franchiseOfferStep(game);
  world.weekNumber = 13;
  backendOfferStep(game);
  EXPECT_TRUE(world.saveAllEmailList.empty());
}

// --- The saga ---

struct SagaOffer : test::RuleTest {
  SagaOffer() : RuleTest(test::Unscripted::low) {
    world.weekNumberForTracking = 300;
    world.yearNumber = 2031;
    world.isSAG = 1;
    world.filmId = 70;
    world.saveAllTalentAgents = {{.id = 9, .agency = "Northlight", .maxBudget = 30'000'000, .isSigned = 1}};
    world.saveAllEmailList = {{.id = 4, .typeOfDeal = deal::franchise}};
  }
};

TEST_F(SagaOffer, StaysTheSameUntilTaken) {
  EXPECT_EQ(franchiseOffer(world, 4), nullptr);
  drawFranchiseOffer(game, 4);
  ASSERT_NE(franchiseOffer(world, 4), nullptr);
  const Audition offer = *franchiseOffer(world, 4);
  random.any(1);
  drawFranchiseOffer(game, 4);
  EXPECT_EQ(*franchiseOffer(world, 4), offer);
  EXPECT_EQ(offer.role, "Lead");
  EXPECT_EQ(offer.franchise, 1);
  EXPECT_GE(offer.residual, 0.01);
  EXPECT_EQ(offer.payment, 2141 / 2 * (1.1 + 0.5) * 0.5);

  world.weekNumberForTracking = 310;
  EXPECT_FALSE(acceptFranchise(game, 4).empty());
  const Audition& booked = world.saveAllAuditionList.back();
  EXPECT_EQ(booked.filmId, 71);
  EXPECT_EQ(booked.title, offer.title);
  EXPECT_EQ(booked.funnelStage, funnel::booked);
  EXPECT_EQ(booked.isContinued, 0);
  EXPECT_EQ(booked.seasonNumber, 1);
  EXPECT_EQ(booked.parentSeriesFilmId, -1);
  EXPECT_EQ(booked.isUnion, 1);
  EXPECT_EQ(booked.sourceId, 9);
  EXPECT_EQ(booked.source, "Northlight");
  EXPECT_EQ(booked.weekAudition, 312);
  EXPECT_EQ(booked.submittedYear, 2031);
  EXPECT_TRUE(world.saveAllEmailList.empty());
  EXPECT_TRUE(acceptFranchise(game, 4).empty());
}

TEST_F(SagaOffer, IsOneThatThePerformerIsNotIn) {
  std::vector<std::int64_t> sagas;
  for (const MovieFranchise& film : movieFranchises()) {
    if (!std::ranges::contains(sagas, film.id)) sagas.push_back(film.id);
  }
  ASSERT_GE(sagas.size(), 3u);
  for (std::size_t index = 0; index + 1 < sagas.size(); ++index) {
    world.saveAllAuditionList.push_back({.filmId = sagas[index], .franchiseId = sagas[index]});
  }
  drawFranchiseOffer(game, 4);
  EXPECT_EQ(franchiseOffer(world, 4)->franchiseId, sagas.back());
}

TEST_F(SagaOffer, NeedsItsEmailAndAnAgent) {
  drawFranchiseOffer(game, 4);
  world.saveAllTalentAgents.edit(0).isSigned = 0;
  EXPECT_EQ(franchiseOffer(world, 4), nullptr);
  world.saveAllTalentAgents.edit(0).isSigned = 1;
  world.saveAllEmailList.clear();
  EXPECT_EQ(franchiseOffer(world, 4), nullptr);
}

// --- Negotiation ---

struct RenewalTalk : test::RuleTest {
  RenewalTalk() {
    world.weekNumberForTracking = 100;
    world.totalEnergyAvailable = 75;
    const auto season = [&](std::int64_t id, std::int64_t number, std::int64_t parent, double viewers) {
      world.saveAllAuditionList.push_back({.filmId = id,
                                           .typeOfFilm = filmType::series,
                                           .isPrincipal = 1,
                                           .title = "Saltwater",
                                           .parentSeriesFilmId = parent,
                                           .seasonNumber = number,
                                           .weekToWork = 111,
                                           .payment = 1'000 * static_cast<double>(number),
                                           .funnelStage = funnel::wrapped,
                                           .directorName = "Mina Falk"});
      world.saveAllRatings.push_back({.filmId = id, .premiereViews = {7, viewers}});
    };
    season(1, 1, -1, 400);
    season(5, 2, 1, 100);
    season(9, 3, 1, 0);
    world.saveAllAuditionList.edit(2).funnelStage = funnel::booked;
    world.saveAllRatings.pop_back();
  }
  const Audition& third() const { return world.saveAllAuditionList[2]; }
  RenewalTalks begin() const { return beginRenewalTalks(world, third()); }
};

TEST_F(RenewalTalk, IsOfferedElevenWeeksBeforeTheWrapOnce) {
  EXPECT_TRUE(isNegotiationOffered(world, third()));
  EXPECT_FALSE(isNegotiationOffered(world, world.saveAllAuditionList[0]));
  Audition other = third();
  other.weekToWork = 110;
  EXPECT_FALSE(isNegotiationOffered(world, other));
  other = third();
  other.didNegotiate = 1;
  EXPECT_FALSE(isNegotiationOffered(world, other));
}

TEST_F(RenewalTalk, AFallingShowWeakensTheCase) {
  EXPECT_EQ(successRatio(world, third()), 0.25);
  const RenewalTalks talks = begin();
  EXPECT_EQ(talks.chanceOfNegotiation, 25);
  EXPECT_EQ(talks.chanceOfNegotiationChange, 2);  // cut to a whole number
  world.saveAllRatings.edit(1).premiereViews = {1, 500};
  EXPECT_EQ(begin().chanceOfNegotiation, 100);
  EXPECT_EQ(begin().chanceOfNegotiationChange, 10);
  EXPECT_EQ(successRatio(world, world.saveAllAuditionList[1]), 1);  // no season before the first

  // Films by their gross.
  for (std::size_t index = 0; index < 3; ++index) {
    world.saveAllAuditionList.edit(index).typeOfFilm = filmType::feature;
  }
  world.saveAllFilmList = {{.filmId = 1, .boxOfficeGross = 800}, {.filmId = 5, .boxOfficeGross = 400}};
  EXPECT_EQ(successRatio(world, third()), 0.5);
  world.saveAllFilmList.edit(0).boxOfficeGross = 0;
  EXPECT_EQ(successRatio(world, third()), 1);
}

TEST_F(RenewalTalk, TenStepsLeaveTheAgentsBonus) {
  world.saveAllRatings.clear();
  world.saveAllTalentAgents = {{.id = 9, .negotiationBonus = 4, .isSigned = 1}};
  RenewalTalks talks = begin();
  lowerAsk(talks);
  EXPECT_EQ(talks.total, 3'000);
  for (int step = 0; step < 11; ++step) raiseAsk(talks);
  EXPECT_EQ(talks.paymentCount, 10);
  EXPECT_DOUBLE_EQ(talks.total, 6'000);
  EXPECT_DOUBLE_EQ(talks.offered(), 3'000);
  EXPECT_EQ(talks.chanceOfNegotiation, 0);
  random.range(110, 3).range(20, 0);  // 4 is not above 4
  const RenewalAnswer lost = negotiateRenewal(game, talks);
  EXPECT_EQ(lost.notice.title, "❌ Negotiation Failed! ❌");
  EXPECT_TRUE(lost.notice.message.ends_with("\"\n- Mina Falk"));
  EXPECT_EQ(third().payment, 3'000);
  EXPECT_EQ(third().didNegotiate, 1);
  EXPECT_EQ(world.totalEnergyAvailable, 0);
  EXPECT_TRUE(
      world.activityTracker.front().starts_with("You tried to negotiate pay and the director said: \""));
  EXPECT_EQ(world.WeekFeed.back(), world.activityTracker.front());

  world.totalEnergyAvailable = 80;
  random.range(110, 2).range(20, 0);
  const RenewalAnswer won = negotiateRenewal(game, talks);
  EXPECT_EQ(won.notice.title, "🤝 Success! ✅");
  EXPECT_TRUE(won.notice.message.ends_with("\"\n- Mina Falk, DIRECTOR"));
  EXPECT_DOUBLE_EQ(third().payment, 6'000);
  EXPECT_EQ(world.totalEnergyAvailable, 5);
}

TEST_F(RenewalTalk, AStakeIsNegotiatedByItsPercentage) {
  world.saveAllRatings.clear();
  world.saveAllAuditionList.edit(2).royalty = 1.5;
  RenewalTalks talks = begin();
  raiseAsk(talks);
  random.range(110, 0).range(20, 0);
  EXPECT_TRUE(negotiateRenewal(game, talks).isFinal);
  EXPECT_DOUBLE_EQ(third().royalty, 1.65);
  EXPECT_EQ(third().payment, 3'000);
}

TEST_F(RenewalTalk, NeedsEnergy) {
  world.totalEnergyAvailable = 74;
  const RenewalTalks talks = begin();
  const WorldState before = world;
  EXPECT_EQ(negotiateRenewal(game, talks).notice.title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(world.saveAllAuditionList, before.saveAllAuditionList);
  EXPECT_EQ(world.totalEnergyAvailable, 74);
  EXPECT_TRUE(isNegotiationOffered(world, third()));
}

}  // namespace
}  // namespace tb
