// Agents: their offers, contracts and the work they find.

#include <format>
#include <gtest/gtest.h>

#include "career/agent_auditions.h"
#include "career/agent_bands.h"
#include "career/agent_contract.h"
#include "career/agent_offer.h"
#include "career/agent_year.h"
#include "career/traits.h"
#include "core/talent_scores.h"
#include "tests/scratch_game.h"
#include "tests/sheet.h"

namespace tb {
namespace {

void setTraits(WorldState& world, std::int64_t points) {
  for (const Trait& trait : traits) world.*trait.points = points;
}

// A guild member in the tenth week with five booked principal roles.
void makeReady(WorldState& world) {
  world.isSAG = 1;
  world.weekNumber = 10;
  world.weekNumberForTracking = 62;
  world.yearNumber = 2027;
  world.experience = 10'000;
  world.myName = "Ada Quinn";
  for (std::int64_t id = 1; id <= 5; ++id) {
    world.saveAllAuditionList.push_back(
        {.filmId = id, .isPrincipal = 1, .title = id == 2 ? "" : "Salt Road", .funnelStage = 1 + id % 2 + 1});
  }
  setTraits(world, 60);
}

struct Agents : test::RuleTest {
  // Draws up to the agent's talent check, which `talentRoll` decides.
  void scriptApproach(std::int64_t talentRoll) {
    random.range(100, 98);            // known enough: 100 levels
    random.range(2, 1).range(20, 3);  // a woman, the fourth portrait
    random.any(2);                    // the name
    random.range(101, talentRoll);
  }
};

TEST_F(Agents, WriteToWorkingMembersEveryTenthWeek) {
  const auto expectSilence = [&](const char* why, auto change) {
    test::ScratchGame other;
    makeReady(other.world);
    change(other.world);
    agentOfferStep(other.game);
    EXPECT_TRUE(other.world.saveAllTalentAgents.empty()) << why;
    EXPECT_TRUE(other.world.saveAllEmailList.empty()) << why;
  };
  expectSilence("not a member", [](WorldState& state) { state.isSAG = 0; });
  expectSilence("another week", [](WorldState& state) { state.weekNumber = 11; });
  expectSilence("four roles", [](WorldState& state) { state.saveAllAuditionList.edit(0).funnelStage = 1; });
  expectSilence("four parts", [](WorldState& state) { state.saveAllAuditionList.edit(0).isPrincipal = 2; });
}

TEST_F(Agents, ExperienceAndTalentDecide) {
  makeReady(world);
  random.range(100, 99);  // a hundred levels are above 99 + 1 in no case
  agentOfferStep(game);
  scriptApproach(60);
  agentOfferStep(game);
  EXPECT_TRUE(world.saveAllTalentAgents.empty());
}

TEST_F(Agents, ComeWithTheTermsOfTheirBandAndAnEmail) {
  makeReady(world);
  world.saveAllTalentAgents = {{.id = 1, .image = "sw4.png"}};
  random.range(100, 98);
  random.range(2, 1).range(20, 3);  // taken
  random.range(2, 0).range(20, 19).any(2);
  random.range(101, 59);
  random.range(50'000'000, 776);
  random.range(5, 4).range(6, 5).unit(0).unit(1).range(2, 1).range(51, 50).range(3, 2).range(5, 4);
  random.range(41, 40).range(3, 1);  // rating 60 of 20 to 60: no royalty
  random.range(40, 0);
  random.range(5, 1);  // the role without a title
  random.range(20, 0).range(25, 0).range(5'000'000, 41).range(50, 0);
  agentOfferStep(game);
  const TalentAgent& agent = world.saveAllTalentAgents.front();
  EXPECT_EQ(agent.id, 777);
  EXPECT_EQ(agent.image, "sm20.png");
  EXPECT_EQ(agent.maxBudget, 17'500'000);
  EXPECT_EQ(agent.commissionPercentage, 0.25);
  EXPECT_EQ(agent.residualBonus, 0.55);
  EXPECT_EQ(agent.fanBonus, 1.25);
  EXPECT_EQ(agent.contractYears, 3);
  EXPECT_EQ(agent.penaltyForBreakingContract, 100'000);
  EXPECT_EQ(agent.weekToSendAudition, 9);
  EXPECT_EQ(agent.negotiationBonus, 7);
  EXPECT_EQ(agent.rating, 60);
  EXPECT_EQ(agent.royaltyBonus, 0);
  EXPECT_EQ(agent.agency, "Threadgill & Mott");
  const Email& email = world.saveAllEmailList.back();
  EXPECT_EQ(email.id, 42);
  EXPECT_EQ(email.typeOfDeal, deal::agent);
  EXPECT_EQ(email.connectingId, 777);
  EXPECT_EQ(email.title, "Representation starts here, Ada Quinn");
  EXPECT_EQ(email.weekNumberForTracking, 62);
  expectToldInBothLists("You received an email from a talent agent.");
}

TEST_F(Agents, DrawSixteenPortraitsAtMost) {
  makeReady(world);
  world.saveAllTalentAgents = {{.id = 1, .image = "sm1.png"}};
  random.range(100, 0).any(2 * 16).any(2).range(101, 60);
  agentOfferStep(game);
}

std::string termsOf(const TalentAgent& agent) {
  return std::format(
      "up to {}, {:.2f} commission, {:.4f} residual, {:.4f} royalty, {:.4f} fans, {} years, penalty {}, "
      "every {} weeks, rating {}, negotiation {}, type {}",
      agent.maxBudget, agent.commissionPercentage, agent.residualBonus, agent.royaltyBonus, agent.fanBonus,
      agent.contractYears, agent.penaltyForBreakingContract, agent.weekToSendAudition, agent.rating,
      agent.negotiationBonus, agent.typeOfAgent);
}

TEST(GoldenAgents, TermsByTalent) {
  test::Sheet sheet("career_agents");
  for (const std::int64_t talent : {1, 20, 21, 30, 31, 40, 41, 50, 51, 60, 61, 70, 71, 80, 81, 90, 91, 100}) {
    for (std::uint64_t seed = 1; seed <= 12; ++seed) {
      sheet.text(
          std::format("talent {} seed {}", talent, seed),
          [&](WorldState& world) {
            makeReady(world);
            world.experience = 1e6;
            setTraits(world, talent);
          },
          [](Game& game) {
            agentOfferStep(game);
            if (game.world.saveAllTalentAgents.empty()) return std::string("no offer");
            return termsOf(game.world.saveAllTalentAgents.front());
          },
          seed);
    }
  }
}

// --- The contract ---

constexpr std::int64_t now = 200;

struct ContractWorld : test::ScratchGame {
  ContractWorld() {
    world.weekNumberForTracking = now;
    world.agentFanBonus = 1;
    world.totalCashAvailable = 100;
    world.saveAllTalentAgents = {{.id = 5,
                                  .commissionPercentage = 0.12,
                                  .residualBonus = 0.5,
                                  .royaltyBonus = 1.4,
                                  .fanBonus = 1.3,
                                  .contractYears = 2,
                                  .penaltyForBreakingContract = 9'000},
                                 {.id = 6}};
    world.saveAllEmailList = {{.id = 1, .typeOfDeal = deal::agent, .connectingId = 5},
                              {.id = 2, .typeOfDeal = deal::agent, .connectingId = 6},
                              {.id = 3, .typeOfDeal = deal::royalty, .connectingId = 5},
                              {.id = 4, .typeOfDeal = deal::franchise}};
  }
};

struct AgentContract : testing::Test, ContractWorld {};

TEST_F(AgentContract, AppliesTheTermsAndAnswersTheEmail) {
  EXPECT_FALSE(signAgent(game, 1));
  EXPECT_EQ(world.saveAllTalentAgents.front().weekContractEnds, now + 104);
  EXPECT_EQ(world.agentCommission, 0.12);
  EXPECT_EQ(world.agentResidualBonus, 0.005);
  EXPECT_EQ(world.agentRoyaltyBonus, 1.4);
  EXPECT_EQ(world.agentFanBonus, 1.3);
  EXPECT_EQ(world.hasAgentRoyalty, 1);
  EXPECT_EQ(offeringAgent(world, 1), nullptr);
  ASSERT_TRUE(signAgent(game, 2));
  EXPECT_EQ(world.saveAllEmailList.size(), 3u);
  EXPECT_EQ(world.saveAllTalentAgents.back().isSigned, 0);
}

TEST_F(AgentContract, EndsWithAPenaltyUntilItsLastWeek) {
  for (const auto& [ends, penalty] : {std::pair{now + 1, 9'000.0}, {now, 0.0}, {now - 1, 0.0}}) {
    ContractWorld fresh;
    EXPECT_FALSE(signAgent(fresh.game, 1));
    fresh.world.saveAllTalentAgents.edit(0).weekContractEnds = ends;
    EXPECT_EQ(releasePenalty(fresh.world), penalty);
    releaseAgent(fresh.game);
    EXPECT_EQ(fresh.world.totalCashAvailable, 100 - penalty);
    EXPECT_EQ(fresh.world.saveAllTalentAgents.front().id, 6);
    EXPECT_EQ(fresh.world.agentCommission + fresh.world.agentResidualBonus + fresh.world.agentRoyaltyBonus,
              0);
    EXPECT_EQ(fresh.world.agentFanBonus, 1);
    EXPECT_EQ(fresh.world.hasAgentRoyalty, 0);
    ASSERT_EQ(fresh.world.saveAllEmailList.size(), 2u);  // the other agent's and the saga
    EXPECT_EQ(fresh.world.saveAllEmailList.back().id, 4);
    releaseAgent(fresh.game);
    EXPECT_EQ(fresh.world.saveAllTalentAgents.size(), 1u);
  }
}

// --- Work ---

struct AgentWork : test::RuleTest {
  AgentWork() : RuleTest(test::Unscripted::low) {
    world.weekNumber = 12;
    world.weekNumberForTracking = 64;
    world.filmId = 30;
    world.saveAllTalentAgents = {
        {.id = 5, .agency = "Northlight", .rating = 80, .isSigned = 1, .weekToSendAudition = 6}};
  }
};

TEST_F(AgentWork, ComesOnTheBeat) {
  for (const std::int64_t week : {11, 13, 53}) {
    world.weekNumber = week;
    agentAuditionStep(game);
  }
  world.weekNumber = 12;
  world.saveAllTalentAgents.edit(0).weekToSendAudition = 0;
  agentAuditionStep(game);
  EXPECT_EQ(weeksToNextAudition(world), std::nullopt);
  EXPECT_TRUE(world.saveAllAuditionList.empty());

  world.saveAllTalentAgents.edit(0).weekToSendAudition = 6;
  agentAuditionStep(game);
  ASSERT_EQ(world.saveAllAuditionList.size(), 1u);
  const Audition& sent = world.saveAllAuditionList[0];
  EXPECT_EQ(sent.filmId, 31);
  EXPECT_EQ(world.filmId, 31);
  EXPECT_EQ(sent.source, "Northlight");
  EXPECT_EQ(sent.sourceId, 5);
  EXPECT_EQ(world.saveAllTalentAgents[0].bookings, 1);
}

TEST_F(AgentWork, IsForeseen) {
  for (const auto& [week, ahead] : {std::pair{12, 6}, {17, 1}, {47, 1}, {48, 10 - 4}, {52, 6}, {1, 5}}) {
    world.weekNumber = week;
    const auto foreseen = weeksToNextAudition(world);
    ASSERT_TRUE(foreseen);
    std::int64_t weeks = 0;
    for (std::int64_t at = week; weeks < 60;) {
      at = at == 53 ? 2 : at + 1;
      weeks += 1;
      if (at % 6 == 0) break;
    }
    EXPECT_EQ(*foreseen, weeks) << week << " " << ahead;
  }
}

TEST(GoldenAgents, WorkByRatingAndReach) {
  test::Sheet sheet("career_agent_work");
  for (const std::int64_t maxBudget : {std::int64_t{0}, std::int64_t{200'000}, std::int64_t{12'000'000}}) {
    for (const std::int64_t rating : {1, 60, 100}) {
      for (std::uint64_t seed = 1; seed <= 12; ++seed) {
        sheet.text(
            std::format("up to {} rating {} seed {}", maxBudget, rating, seed),
            [&](WorldState& world) {
              world.isSAG = 1;
              world.weekNumber = 12;
              world.weekNumberForTracking = 64;
              world.saveAllTalentAgents = {{.id = 5,
                                            .name = "Rosa Vance",
                                            .agency = "Northlight",
                                            .rating = rating,
                                            .maxBudget = maxBudget,
                                            .isSigned = 1,
                                            .weekToSendAudition = 4}};
            },
            [](Game& game) {
              agentAuditionStep(game);
              const Audition& sent = game.world.saveAllAuditionList[0];
              return std::format("type {} stage {} budget {} pay {} weeks {} {} {}: {}", sent.typeOfFilm,
                                 sent.funnelStage, sent.budget, sent.payment, sent.weekAudition,
                                 sent.weekToWork, sent.weekReleased, game.world.WeekFeed.back());
            },
            seed);
      }
    }
  }
}

TEST(AgentYear, CountsTheCurrentYearOfThisAgent) {
  WorldState world;
  world.yearNumber = 2030;
  const auto sent = [&](std::int64_t source, std::int64_t year, std::int64_t stage) {
    world.saveAllAuditionList.push_back({.submittedYear = year, .sourceId = source, .funnelStage = stage});
  };
  sent(5, 2030, funnel::submitted);
  sent(5, 2030, funnel::wrapped);
  sent(5, 2029, funnel::booked);
  sent(6, 2030, funnel::booked);
  world.saveAllRoyaltyPayouts = {{.yearNumber = 2029, .sourceId = 5, .agentEarnings = 1},
                                 {.yearNumber = 2030, .sourceId = 5, .agentEarnings = 20},
                                 {.yearNumber = 2030, .sourceId = 6, .agentEarnings = 300}};
  const AgentYear year = agentYear(world, {.id = 5});
  EXPECT_EQ(year.sent, 2);
  EXPECT_EQ(year.booked, 1);
  EXPECT_EQ(year.commission, 20);
}

}  // namespace
}  // namespace tb
