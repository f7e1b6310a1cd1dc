#include "screens/love/partner_profile_view_controller.h"

#include "core/calendar.h"
#include "core/format.h"
#include "core/number_style.h"
#include "life/partner.h"
#include "screens/love/love_parts.h"
#include "screens/love/person_nodes.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

Page PartnerProfileViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Matches* const partner = currentPartner(world);
  if (partner == nullptr) return {.title = "Partner", .nodes = {caption("You are single.")}};
  return {
      .title = partner->name,
      .subtitle = togetherWords(world, *partner),
      .nodes = {
          Card{.title = tb::format("{} years old", partner->age),
               .subtitle = interestWords(*partner),
               .picture = {portraitOf(*partner)},
               .nodes = {meterNode(*partner)}},
          Tiles{{{.label = "Chemistry", .value = tb::format("{:.0f}% Chemistry", partner->chemistry)},
                 {.label = "Every week", .value = tb::format("{:+} Energy", partner->energyBonus)}}},
          Section{.heading = "FIGURES",
                  .nodes = {scoreMeter("Smarts", partner->intelligence), scoreMeter("Looks", partner->beauty),
                            scoreMeter("Personality", partner->personality),
                            scoreMeter("Maintenance", partner->maintenance)}},
          Section{.heading = "WORK",
                  .nodes = {Row{.label = partner->occupation,
                                .value = wholeMoney(game.locale, partner->weeklyEarnings * weeksPerYear),
                                .detail = wholeMoney(game.locale, partner->weeklyEarnings) + " a week"},
                            Row{.label = "Followers", .value = shortCount(partner->igFollowers)}}},
          Section{.heading = "HOW YOU MET",
                  .nodes = {promptNode(*partner),
                            Bubble{.speaker = world.myName, .text = partner->matchComment, .mine = true},
                            Bubble{.speaker = partner->name, .text = partner->pickupLineResponse}}}}};
}

}  // namespace tb
