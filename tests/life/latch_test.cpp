// Latch: the people on its cards, swiping, the first line, the list of matches, and the conversation.

#include "life/latch.h"

#include <gtest/gtest.h>

#include "banks/latch_profiles_banks.h"
#include "banks/latch_prompts_banks.h"
#include "banks/latch_talk_banks.h"
#include "banks/names_banks.h"
#include "life/latch_people.h"
#include "life/partner.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

// The draws of a card; each value is what its draw gives.
struct CardDraws {
  std::int64_t age = 0;
  std::int64_t chemistry = 0;
  std::int64_t followerRoll = 0;
  std::int64_t mostFollowers = 8'000;
  std::int64_t followers = 0;
  std::int64_t occupation = 0;
  std::int64_t beauty = 0;
  std::int64_t maintenance = 0;
  std::vector<std::int64_t> interests = {0};
  std::int64_t prompt = 0;
  std::int64_t answers = 25;
  double earnings = 0.5;
};

struct Latch : test::RuleTest {
  Latch() {
    world.myName = "Ada Quinn";
    world.weekNumberForTracking = world.weekNumber = 5;
  }

  std::int64_t interestWithWords(bool isPhrase, std::int64_t from = 0) {
    const auto rows = rowsOf(bank::interests);
    while (rows[static_cast<std::size_t>(from)].contains(' ') != isPhrase) from += 1;
    return from;
  }

  const Matches& deal(const CardDraws& draws) {
    random.range(23, draws.age)
        .range(world.talentTrait2 + 1, draws.chemistry)
        .range(101, draws.followerRoll)
        .range(draws.mostFollowers - 49, draws.followers)
        .range(44, draws.occupation)
        .range(96, draws.beauty)
        .any(2)
        .range(96, draws.maintenance);
    for (const std::int64_t interest : draws.interests) random.range(205, interest);
    if (world.saveGenderPreference == preference::both) random.range(2, 1);
    const bool isMan = world.saveGenderPreference == preference::men;
    random.range(isMan ? 45 : 121, isMan ? 44 : 120).range(isMan ? 44 : 54, 1).range(120, 2);
    random.range(19, draws.prompt).range(draws.answers, draws.answers - 1).unit(draws.earnings);
    generateCandidate(game);
    return world.latchCard.front();
  }

  void addMatch(std::int64_t state, const std::string& name, double meter = 60) {
    world.saveAllMatchesList.push_back({.matchId = std::ssize(world.saveAllMatchesList) + 1,
                                        .name = name,
                                        .energyBonus = 4,
                                        .relationshipStatus = meter,
                                        .relationshipState = state});
  }
};

TEST_F(Latch, DealsTheLowestAndTheHighestCard) {
  const std::int64_t phrase = interestWithWords(true);
  world.talentTrait2 = 0;
  const Matches& plain = deal({.interests = {phrase}});
  EXPECT_EQ(plain.age, 18);
  EXPECT_EQ(plain.chemistry, 5);
  EXPECT_EQ(plain.igFollowers, 50);
  EXPECT_EQ(plain.occupation, "Bartender");
  EXPECT_DOUBLE_EQ(plain.weeklyEarnings, 400);
  EXPECT_EQ(plain.energyBonus, 3);  // a base of 1, and 2 for almost no maintenance
  EXPECT_EQ(plain.matchImage, "woman (121).png");
  EXPECT_EQ(world.latchTagline, rowsOf(bank::femaleTagLines)[1]);
  EXPECT_EQ(plain.name, rowsOf(bank::femaleFirstNames)[2]);
  EXPECT_EQ(plain.matchPromptResponse, rowsOf(bank::promptAnswers1)[24]);
  world.talentTrait2 = 50;
  world.saveGenderPreference = preference::men;
  const Matches& rich = deal({.age = 22,
                              .chemistry = 50,
                              .followerRoll = 100,
                              .mostFollowers = 500'000,
                              .followers = 499'950,
                              .occupation = 43,
                              .beauty = 95,
                              .maintenance = 95,
                              .interests = {phrase},
                              .prompt = 18,
                              .answers = 15,
                              .earnings = 1});
  EXPECT_EQ(rich.age, 40);
  EXPECT_EQ(rich.chemistry, 55);
  EXPECT_EQ(rich.igFollowers, 500'000);
  EXPECT_EQ(rich.beauty, 100);
  EXPECT_DOUBLE_EQ(rich.weeklyEarnings, 3'300);
  EXPECT_EQ(rich.energyBonus, 7);  // 2 x 55 / 10 - 4
  EXPECT_EQ(rich.matchImage, "man (45).png");
  EXPECT_EQ(rich.matchPromptResponse, rowsOf(bank::promptAnswers19)[14]);
  world.saveGenderPreference = preference::both;
  EXPECT_TRUE(deal({.interests = {phrase}}).matchImage.starts_with("woman"));
}

// With chemistry 5 the base is 1, so that only the bonus of each band remains.
TEST_F(Latch, MaintenanceChangesTheEnergyInASawTooth) {
  world.talentTrait2 = 0;
  const std::int64_t phrase = interestWithWords(true);
  const std::pair<std::int64_t, std::int64_t> bands[] = {{9, 3},  {10, 2}, {19, 2}, {20, 4}, {29, 4},
                                                         {30, 3}, {40, 5}, {50, 4}, {59, 4}, {60, 0},
                                                         {70, 0}, {90, 0}, {100, 0}};
  for (const auto& [maintenance, energy] : bands) {
    EXPECT_EQ(deal({.maintenance = maintenance - 5, .interests = {phrase}}).energyBonus, energy)
        << maintenance;
  }
  for (const auto& [roll, most] :
       {std::pair{50, 8'000}, {51, 25'000}, {75, 25'000}, {76, 100'000}, {90, 100'000}, {91, 500'000}}) {
    deal({.followerRoll = roll, .mostFollowers = most, .followers = most - 50, .interests = {phrase}});
    EXPECT_EQ(world.latchCard.front().igFollowers, most) << roll;
  }
}

TEST_F(Latch, InterestsEndWithAPhraseOrAfterSixteenRounds) {
  world.talentTrait2 = 0;
  const std::int64_t word = interestWithWords(false);
  const std::int64_t other = interestWithWords(false, word + 1);
  const std::int64_t phrase = interestWithWords(true);
  const auto rows = rowsOf(bank::interests);
  EXPECT_EQ(
      deal({.interests = {word, word, other, phrase}}).interests,
      (std::vector<std::string>{rows[static_cast<std::size_t>(word)], rows[static_cast<std::size_t>(other)],
                                rows[static_cast<std::size_t>(phrase)]}));
  EXPECT_EQ(deal({.interests = std::vector<std::int64_t>(16, word)}).interests.size(), 1u);
}

TEST_F(Latch, ThreeEnergyAllowOneSwipe) {
  random.any(40);
  generateCandidate(game);
  world.totalEnergyAvailable = 5;
  EXPECT_FALSE(swipeLeft(game));
  EXPECT_EQ(world.totalEnergyAvailable, 2);
  const Refusal left = swipeLeft(game);
  ASSERT_TRUE(left);
  EXPECT_EQ(left->title, "⚡️ Not Enough Energy ⚡️");
  EXPECT_EQ(left->message, "\nYou don't have the energy to keep looking at potential lovers.");
  const Liked right = swipeRight(game);
  ASSERT_TRUE(right.refusal);
  EXPECT_EQ(right.refusal->message, "\nYou don't have the energy to keep swiping endlessly");
  EXPECT_EQ(world.totalEnergyAvailable, 2);
  random.clear();
}

TEST_F(Latch, ARightSwipeMatchesBelowChemistryAndTheTrait) {
  world.totalEnergyAvailable = 100;
  world.talentTrait2 = 50;
  for (const auto& [roll, isMatch] : {std::pair{61, true}, {62, false}}) {
    world.latchCard = {{.name = "Mia", .chemistry = 12.9}};
    random.range(201, roll).any(40);
    const Liked liked = swipeRight(game);
    EXPECT_EQ(liked.match.has_value(), isMatch) << roll;
    EXPECT_NE(world.latchCard.front().name, "Mia");
    random.clear();
  }
  EXPECT_EQ(world.totalEnergyAvailable, 94);
  EXPECT_NEAR(matchChance(world, {.chemistry = 12.9}), 100.0 * 62 / 201, 1e-9);
}

TEST_F(Latch, TheFirstLineMakesTheRecord) {
  const Matches match{.name = "Mia", .age = 30, .chemistry = 5, .maintenance = 100};
  random.range(25, 3).range(2, 1).range(25, 4).range(101, 100);
  const Notice told = sendFirstLine(game, match, "  ");
  EXPECT_EQ(told.title, "🌹 Hey, You 🌹");
  EXPECT_EQ(
      told.message,
      "\nYou made the first move...\n\nFollow up by tapping on the rose icon in the top right corner on "
      "the main Latch screen.");
  random.range(2, 0).range(25, 7).range(101, 0);
  (void)sendFirstLine(game, match, " Hello. ");
  ASSERT_EQ(world.saveAllMatchesList.size(), 2u);
  const Matches& doomed = world.saveAllMatchesList[0];
  const Matches& eager = world.saveAllMatchesList[1];
  EXPECT_EQ(doomed.matchComment, rowsOf(bank::hingeComments)[3]);
  EXPECT_EQ(doomed.pickupLineResponse, rowsOf(bank::rejectionLines)[4]);
  EXPECT_EQ(doomed.timeToPropose, 152);
  EXPECT_EQ(doomed.relationshipStatus, 27.5);
  EXPECT_EQ(doomed.weekMatched, 5);
  EXPECT_EQ(eager.matchComment, "Hello.");
  EXPECT_EQ(eager.pickupLineResponse, rowsOf(bank::acceptanceLines)[7]);
  EXPECT_EQ(eager.timeToPropose, 52);
  EXPECT_EQ(eager.matchId, 2);
}

TEST_F(Latch, AConversationEndsInARelationshipOrARejection) {
  addMatch(bond::matched, "Noor");
  addMatch(bond::matched, "Mia");
  world.saveAllMatchesList.edit(0).interested = 1;
  world.relationshipTracker = {"of a former relationship"};
  ASSERT_TRUE(openMatch(game, 0).isConversation);
  random.range(51, 50).range(25, 24);
  const Conversation talk = conversationStep(game);
  EXPECT_EQ(talk.followUp, rowsOf(bank::followUps)[50]);
  EXPECT_EQ(talk.reply, rowsOf(bank::rejectingReplies)[24]);
  finishConversation(game);
  EXPECT_EQ(world.rejectionCount, 1);
  ASSERT_EQ(world.saveAllMatchesList.size(), 1u);
  ASSERT_TRUE(openMatch(game, 0).isConversation);
  random.range(28, 0).range(20, 0).unit(1).unit(1).unit(1).unit(0);
  finishConversation(game);
  EXPECT_EQ(world.slideIntoDmsCount, 2);
  EXPECT_EQ(world.rejectionCount, 1);
  const Matches& partner = *currentPartner(world);
  EXPECT_EQ(partner.relationshipState, bond::dating);
  EXPECT_EQ(partner.weekStartedDating, 5);
  EXPECT_EQ(world.totalEnergyMax, 104);
  ASSERT_EQ(world.relationshipTracker.size(), 1u);
  EXPECT_TRUE(world.relationshipTracker[0].ends_with(
      " You started dating Mia and your weekly energy has been increased by +4"))
      << world.relationshipTracker[0];
  EXPECT_EQ(world.activityTracker[0], world.relationshipTracker[0]);
  const Chirp& post = world.saveAllChirpList.back();
  EXPECT_EQ(post.id, 1);
  EXPECT_EQ(post.artistId, 200'002);
  EXPECT_EQ(post.typeOfAccount, 3);
  EXPECT_EQ(post.likeCount, 1'000);   // half of a fifth of 10,000
  EXPECT_EQ(post.reChirpCount, 200);  // a tenth
  EXPECT_TRUE(post.message.contains(" #")) << post.message;
}

TEST_F(Latch, FormerPartnersOpenOnlyBesideAPartner) {
  addMatch(bond::ended, "Noor");
  EXPECT_FALSE(canOpenMatch(world, 0));
  const Opened nothing = openMatch(game, 0);
  EXPECT_FALSE(nothing.isConversation || nothing.notice || nothing.separation);
  addMatch(bond::dating, "Mia");
  for (const std::size_t row : {0u, 1u}) {
    const Opened opened = openMatch(game, row);
    ASSERT_TRUE(opened.notice);
    EXPECT_EQ(opened.notice->title, "❤️ It's Official ❤️");
    EXPECT_EQ(opened.notice->message, "\nMia makes you feel on top of the world!");
  }
}

TEST_F(Latch, AMessageToAnotherHurtsFromZeroUpAndEndsItBelow) {
  addMatch(bond::dating, "Mia", 40);
  addMatch(bond::matched, "Noor");
  random.range(2, 1);
  EXPECT_FALSE(openMatch(game, 1).notice);
  EXPECT_EQ(currentPartner(world)->relationshipStatus, 40);
  random.range(2, 0).range(26, 25).range(20, 0);
  const Opened hurt = openMatch(game, 1);
  ASSERT_TRUE(hurt.notice);
  EXPECT_EQ(hurt.notice->message,
            "\nMia saw you sliding into Noor's DMs...\n\nYour relationship took a hit (-40).");
  EXPECT_EQ(currentPartner(world)->relationshipStatus, 0);
  EXPECT_TRUE(world.activityTracker[0].starts_with("Gossip: ")) << world.activityTracker[0];
  world.relationshipTracker = {"something"};
  world.askForMoneyEnergyCost = 30;
  random.range(2, 0).range(26, 0).range(28, 0);
  const Opened over = openMatch(game, 1);
  ASSERT_TRUE(over.separation);
  EXPECT_EQ(over.separation->notice.title, "ADA QUINN!🤬");
  const Matches& former = world.saveAllMatchesList[0];
  EXPECT_EQ(
      over.separation->notice.message,
      "\n'" + former.breakupLine +
          "'\n\n-Mia😭\n\nYou are a heartbreaker and lost your energy bonus of 4 and an additional -1 for "
          "all the drama your now ex will be causing you.");
  EXPECT_EQ(former.relationshipState, bond::ended);
  EXPECT_EQ(former.weekEndedDating, 5);
  EXPECT_EQ(world.totalEnergyMax, 95);
  EXPECT_EQ(world.energyLossExDrama, 1);
  EXPECT_EQ(world.askForMoneyEnergyCost, 5);
  EXPECT_TRUE(world.relationshipTracker.empty());
}

TEST_F(Latch, AMarriedPartnerTakesHalfOfTheCashWithoutAPrenup) {
  struct Case {
    double cash;
    std::int64_t prenup;
    double left;
    const char* share;
  };
  for (const Case& given : {Case{2.5e12, 0, 1.25e12, "($1.2T)"}, Case{-1'000, 0, -500, "(-$500)"},
                            Case{2'000, 1, 2'000, nullptr}}) {
    world.saveAllMatchesList.clear();
    addMatch(bond::married, "Mia", 0);
    addMatch(bond::matched, "Noor");
    world.totalEnergyMax = 100;
    world.energyLossExDrama = 0;
    world.totalCashAvailable = given.cash;
    world.signPrenup = given.prenup;
    random.range(2, 0).range(26, 0).range(28, 0);
    const Opened over = openMatch(game, 1);
    ASSERT_TRUE(over.separation);
    EXPECT_EQ(over.separation->notice.title, "🤬 I WANT A DIVORCE!🤬");
    const std::string start =
        "\nAda Quinn, I can't keep living like this with you sliding into DM's while we are MARRIED! I "
        "signed "
        "the divorce papers today and ";
    const std::string end =
        "\n\nYou lost your energy bonus of 4 and an additional -2 for all the trauma a divorce will be "
        "causing "
        "you...";
    EXPECT_EQ(over.separation->notice.message,
              given.prenup == 1
                  ? start + "even though we signed a prenup, you can keep your DIRTY money!" + end
                  : start + "will be taking my share " + given.share +
                        " of what WE built in cash!\n\nIf you do not have the cash on hand, you will take a "
                        "negative balance." +
                        end);
    EXPECT_EQ(world.totalCashAvailable, given.left);
    EXPECT_EQ(world.totalEnergyMax, 94);
    EXPECT_EQ(world.energyLossExDrama, 2);
    EXPECT_EQ(world.signPrenup, 0);
  }
}

}  // namespace
}  // namespace tb
