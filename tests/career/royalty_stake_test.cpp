// The screen of a stake offer.

#include "career/royalty_stake.h"

#include <gtest/gtest.h>

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

// A first screen from which the e-mail is opened.
class Desk : public Screen {
 public:
  void load(Stage& stage) override { stage.game().world.passEmailId = mail; }
  view::Page view(const Game&) override {
    const auto open = [](Stage& stage) { stage.open(std::make_unique<RoyaltyViewController>()); };
    return {.title = "Desk", .nodes = {view::Button{.label = "Open", .press = open}}};
  }
};

TEST(RoyaltyScreen, NegotiatesOnce) {
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
  player.expectSees({"No fee. Hear me out.", "100% Chance + 6% Agent Bonus", "This is what they offer"});
  for (int step = 0; step < maxStakeSteps; ++step) player.press("Ask for more");
  player.expectSees({"| 0% Chance + 6% Agent Bonus", "Nobody has ever asked for more"});
  for (int step = 0; step < maxStakeSteps; ++step) player.press("Ask for less");

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
