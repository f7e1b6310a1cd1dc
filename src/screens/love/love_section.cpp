#include "screens/love/love_section.h"

#include "life/partner.h"
#include "screens/love/latch_dating_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/relationship_home_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

std::string moodWords(const Matches& partner) {
  switch (scoreBand(static_cast<double>(shownMeter(partner)))) {
    case Band::poor:
      return "One more quiet week could end it";
    case Band::fair:
      return "You have seen better weeks";
    case Band::good:
      return "The two of you are doing well";
    default:
      return "On top of the world";
  }
}

Card partnerCard(const WorldState& world, const Matches& partner) {
  return {.title = partner.name,
          .subtitle = togetherWords(world, partner),
          .picture = {portraitOf(partner)},
          .nodes = {meterNode(partner), Text{.text = moodWords(partner), .tone = Tone::quiet}},
          .press = opens<RelationshipHomeViewController>()};
}

}  // namespace

Section loveSection(const Game& game) {
  Section section{.heading = "LOVE"};
  if (const Matches* const partner = currentPartner(game.world)) {
    section.nodes.push_back(partnerCard(game.world, *partner));
  }
  section.nodes.push_back(leadingTo<LatchDatingViewController>("Latch", "Swipe, match, write to somebody"));
  return section;
}

}  // namespace tb
