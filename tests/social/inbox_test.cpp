#include "social/inbox.h"

#include <gtest/gtest.h>

#include "core/career_start.h"
#include "core/load_world.h"
#include "core/welcome_mail.h"
#include "tests/scratch_game.h"

namespace tb {
namespace {

struct Inbox : test::RuleTest {
  std::vector<std::string> titles() const {
    std::vector<std::string> found;
    for (const Email& email : world.saveAllEmailList) found.push_back(email.title);
    return found;
  }
};

TEST_F(Inbox, BeginsWithFourLettersOnce) {
  world.yearNumber = 2031;
  ASSERT_FALSE(confirmNewCareer(game, {.myName = "Ada"}));
  const std::vector<std::string> welcome = {"A Free Gift", "Showreel", "Acting Classes", "Audition"};
  EXPECT_EQ(titles(), welcome);
  EXPECT_EQ(world.saveAllEmailList.back().yearNumber, firstYear);
  ASSERT_FALSE(confirmNewCareer(game, {.myName = "Ada"}));
  EXPECT_EQ(titles(), welcome);

  loadWorld(game);  // an empty store has the form ahead
  EXPECT_EQ(titles(), welcome);
  store.put("enterPlayerDetails", plist::Value{std::int64_t{1}});
  loadWorld(game);
  EXPECT_TRUE(world.saveAllEmailList.empty());
}

TEST_F(Inbox, TheGiftPaysOnceAndTakesItsTipAlong) {
  sendWelcomeMail(world);
  sendEmail(game, {.id = Email::giftId, .typeOfDeal = deal::message});  // an id alone is no gift
  claimGift(game);
  EXPECT_EQ(world.totalCashAvailable, 1000);
  EXPECT_EQ(titles(), (std::vector<std::string>{"Acting Classes", "Audition", ""}));
  claimGift(game);
  EXPECT_EQ(world.totalCashAvailable, 1000);
}

TEST_F(Inbox, KeepsTheTwentyMostRecent) {
  world.weekNumber = 7;
  world.yearNumber = 2030;
  world.weekNumberForTracking = 215;
  for (std::int64_t id = 1; id <= 20; ++id) sendEmail(game, {.id = id, .typeOfDeal = deal::agent});
  EXPECT_TRUE(isInboxFull(world));
  EXPECT_NE(emailWith(world, 1), nullptr);
  sendEmail(game, {.id = 21});
  EXPECT_EQ(world.saveAllEmailList.size(), 20u);
  EXPECT_EQ(emailWith(world, 1), nullptr);
  EXPECT_EQ(world.saveAllEmailList.back(),
            (Email{.id = 21, .weekNumber = 7, .yearNumber = 2030, .weekNumberForTracking = 215}));
}

TEST_F(Inbox, StakesAndSagasNeedAnAgent) {
  for (const std::int64_t kind :
       {deal::agent, deal::investment, deal::royalty, deal::franchise, deal::buyout}) {
    world.saveAllEmailList = {{.id = 9, .typeOfDeal = kind}};
    world.saveAllTalentAgents = {{.id = 5}};
    const bool needsAgent = kind == deal::royalty || kind == deal::franchise;
    EXPECT_EQ(openEmail(game, 0).has_value(), needsAgent) << kind;
    EXPECT_EQ(world.passEmailId, 9);
    EXPECT_EQ(world.saveAllEmailList.size(), 1u);
    world.saveAllTalentAgents.edit(0).isSigned = 1;
    EXPECT_FALSE(openEmail(game, 0)) << kind;
  }
}

}  // namespace
}  // namespace tb
