#include "life/break_up.h"

#include "banks/draw.h"
#include "banks/relationships_banks.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "life/partner.h"
#include "life/separation.h"

namespace tb {

namespace {

// What the player wrote, and the energy that goes with the partner.
std::string farewellWords(const Matches& partner, const char* message, const std::string& line) {
  return tb::format("\nYou sent {} {}:\n\n'{}'.\n\nYou lost your energy bonus of {}", partner.name, message,
                    line, partner.energyBonus);
}

void leavePartner(WorldState& world, std::int64_t energyBonus, const std::string& line) {
  world.totalEnergyMax -= energyBonus;
  world.totalEnergyAvailable -= breakUpEnergy;
  endRelationship(world, line);
}

}  // namespace

Refusal breakUpRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= breakUpEnergy) return {};
  return notEnoughEnergy(
      "\nYou do not have enough energy (25) to share your true feelings and call it quits.");
}

double divorceShare(const WorldState& world) { return world.signPrenup == 1 ? 0 : world.saveNetworth * 0.5; }

Notice breakUpQuestion(const Game& game) {
  const Matches& partner = *currentPartner(game.world);
  if (partner.relationshipState != bond::married) {
    return {.title = "💔 Breakup? 💔",
            .message = tb::format("\nAre you sure you want to breakup with {}?", partner.name)};
  }
  if (game.world.signPrenup == 1) {
    return {
        .title = "💔 Divorce? 💔",
        .message = tb::format("Are you sure you want to divorce {}?\n\nYou signed a prenup so you will keep "
                              "all your assets.",
                              partner.name)};
  }
  return {
      .title = "💔 Divorce? 💔",
      .message = tb::format("\nAre you sure you want to divorce {}?{} will be entitled to 50% - ({}).\n\nIf "
                            "you do not have the cash on hand, you will take a negative cash balance.",
                            partner.name, partner.name, shareMoney(game.locale, divorceShare(game.world)))};
}

Notice breakUp(Game& game) {
  WorldState& world = game.world;
  const Matches partner = *currentPartner(world);
  const bool isHarsh = RandomRange(game.random, 2) == 0;
  const std::string line(drawFreshRow(game, isHarsh ? bank::breakUpHeartbreaker : bank::breakUpGoodTerms));
  leavePartner(world, partner.energyBonus, line);
  if (isHarsh) world.energyLossExDrama += 1;
  logActivity(world, tb::format("You and {} broke up.", partner.name));
  return {.title = isHarsh ? "💔 Heartbreaker 💔" : "💔 Moving On 💔",
          .message = farewellWords(partner, "a breakup text", line) +
                     (isHarsh ? " and an additional -1 for all the drama your now ex will be causing you."
                              : ", shed some tears together but ended on good terms.")};
}

Notice divorce(Game& game, double amount) {
  WorldState& world = game.world;
  const Matches partner = *currentPartner(world);
  const std::string line(
      drawFreshRow(game, world.signPrenup == 1 ? bank::breakUpGoodTerms : bank::divorceLines));
  leavePartner(world, partner.energyBonus, line);
  world.totalEnergyMax -= 2;
  world.totalCashAvailable -= amount;
  world.energyLossExDrama += 2;
  world.signPrenup = 0;
  world.saveRingImage.clear();
  world.saveWeddingImage.clear();
  logActivity(world, tb::format("You and {} got divorced.", partner.name));
  return {.title = "💔 Ready to Move On 💔",
          .message = farewellWords(partner, "the divorce papers", line) +
                     " and an additional -2 for all the drama related to the divorce."};
}

}  // namespace tb
