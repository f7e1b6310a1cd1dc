#include "screens/love/latch_dating_view_controller.h"

#include <algorithm>

#include "core/format.h"
#include "core/number_style.h"
#include "life/latch.h"
#include "life/latch_people.h"
#include "life/partner.h"
#include "screens/love/latch_match_list_view_controller.h"
#include "screens/love/latch_matching_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/relationship_home_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Choice preferenceChoice(const WorldState& world) {
  const std::int64_t wish = world.saveGenderPreference;
  const auto option = [&](const char* label, std::int64_t value, bool isChosen) {
    return Choice::Option{.label = label, .chosen = isChosen, .press = [value](Stage& stage) {
                            stage.game().world.saveGenderPreference = value;
                            stage.game().world.latchCard.clear();
                          }};
  };
  return {.label = "Show me",
          .options = {
              option("Women", preference::women, wish == preference::women),
              option("Men", preference::men, wish == preference::men),
              option("Everyone", preference::both, wish != preference::women && wish != preference::men)}};
}

std::string openWords(std::int64_t open) {
  if (open == 0) return "Nobody waits for a message";
  return open == 1 ? "1 match to write to" : tb::format("{} matches to write to", open);
}

Node aboutDating(const WorldState& world) {
  const Matches* const partner = currentPartner(world);
  if (partner == nullptr) {
    return Text{
        .text = tb::format(
            "Every swipe takes {} energy. A partner brings energy every week, and wants some of it back.",
            swipeEnergy)};
  }
  return Card{.title = partner->name,
              .subtitle = togetherWords(world, *partner),
              .picture = {portraitOf(*partner)},
              .nodes = {meterNode(*partner)},
              .press = opens<RelationshipHomeViewController>()};
}

}  // namespace

Page LatchDatingViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const auto open = std::ranges::count(world.saveAllMatchesList, bond::matched, &Matches::relationshipState);
  return {
      .title = "Latch",
      .icons = {{.label = "Matches", .icon = Icon::rose, .press = opens<LatchMatchListViewController>()}},
      .nodes = {aboutDating(world), preferenceChoice(world),
                leadingTo<LatchMatchListViewController>("Your matches", openWords(open),
                                                        std::to_string(world.saveAllMatchesList.size())),
                Tiles{{{.label = "Conversations", .value = plainCount(game.locale, world.slideIntoDmsCount)},
                       {.label = "Rejections", .value = plainCount(game.locale, world.rejectionCount)}}}},
      .main = {{.label = "Swipe",
                .press = opens<LatchMatchingViewController>(),
                .weight = Button::Weight::primary}}};
}

}  // namespace tb
