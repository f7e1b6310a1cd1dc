#include "screens/love/latch_matching_view_controller.h"

#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "life/latch.h"
#include "life/latch_people.h"
#include "screens/love/latch_match_list_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/person_nodes.h"
#include "screens/love/relationship_match_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

void pass(Stage& stage) { stage.show(swipeLeft(stage.game())); }

void like(Stage& stage) {
  Liked liked = swipeRight(stage.game());
  if (liked.refusal) return stage.show(std::move(liked.refusal));
  if (!liked.match) return stage.say("No match this time");
  stage.play(glow("MATCH", "You and " + liked.match->name, portraitOf(*liked.match)));
  stage.open<RelationshipMatchViewController>(std::move(*liked.match));
}

Button answer(const WorldState& world, const char* label, Swipe side) {
  const bool isRight = side == Swipe::right;
  return {.label = label,
          .press = isRight ? like : pass,
          .price = energyPrice(swipeEnergy),
          .refusal = briefOf(swipeRefusal(world, side)),
          .weight = isRight ? Button::Weight::primary : Button::Weight::normal};
}

Card cardOf(const Game& game) {
  const Matches& person = game.world.latchCard.front();
  Card shown{.title = person.name,
             .subtitle = tb::format("{} years old •  Active today", person.age),
             .picture = {portraitOf(person)},
             .nodes = {Text{.text = game.world.latchTagline, .style = Text::Style::quotation}}};
  shown.nodes.append_range(personNodes(game, person));
  shown.nodes.push_back(promptNode(person));
  return shown;
}

}  // namespace

void LatchMatchingViewController::load(Stage& stage) {
  if (stage.game().world.latchCard.empty()) generateCandidate(stage.game());
}

Page LatchMatchingViewController::view(const Game& game) {
  const WorldState& world = game.world;
  return {.title = "Latch",
          .subtitle = tb::format("Chance of a match: {:.0f}%", matchChance(world, world.latchCard.front())),
          .head = Page::Head::line,
          .icons = {{.label = "Matches", .icon = Icon::rose, .press = opens<LatchMatchListViewController>()}},
          .nodes = {SwipeCard{.card = cardOf(game),
                              .left = answer(world, "Pass", Swipe::left),
                              .right = answer(world, "Like", Swipe::right)}}};
}

}  // namespace tb
