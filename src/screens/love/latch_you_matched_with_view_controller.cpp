#include "screens/love/latch_you_matched_with_view_controller.h"

#include <utility>

#include "core/format.h"
#include "screens/love/love_parts.h"
#include "screens/love/person_nodes.h"
#include "screens/love/relationship_home_view_controller.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

constexpr double readingTime = 1;  // seconds before the match starts to write

const Matches* selectedMatch(const WorldState& world) {
  const std::int64_t index = world.selectedMatchIndex;
  if (index < 0 || index >= std::ssize(world.saveAllMatchesList)) return nullptr;
  return &world.saveAllMatchesList[static_cast<std::size_t>(index)];
}

}  // namespace

void LatchYouMatchedWithViewController::finish(Stage& stage) {
  const Matches match = *selectedMatch(stage.game().world);
  finishConversation(stage.game());
  stage.close();
  if (match.interested != 0) return stage.say("There are others on Latch");
  stage.open<RelationshipHomeViewController>();
  stage.play(glow("OFFICIAL", "You and " + match.name, portraitOf(match)));
}

Button LatchYouMatchedWithViewController::mainButton(const Matches& match) {
  if (!conversation_) {
    return {.label = "SEND MESSAGE",
            .press = [this](Stage& stage) { conversation_ = conversationStep(stage.game()); },
            .weight = Button::Weight::primary};
  }
  return {.label = match.interested == 0 ? "MAKE IT OFFICIAL" : "ACCEPT REJECTION",
          .press = [this](Stage& stage) { finish(stage); },
          .weight = match.interested == 0 ? Button::Weight::primary : Button::Weight::normal};
}

Page LatchYouMatchedWithViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Matches* const match = selectedMatch(world);
  if (match == nullptr) return {.title = "Latch", .nodes = {caption("Nobody is here.")}};
  Page page{.title = "You matched\nwith " + match->name,
            .subtitle = agoWords(world, match->weekMatched),
            .head = Page::Head::line};
  page.nodes = {Card{.title = match->matchPrompt,
                     .subtitle = match->matchPromptResponse,
                     .picture = {portraitOf(*match)}},
                Fold{.key = "person", .label = "About " + match->name, .nodes = personNodes(game, *match)},
                Bubble{.speaker = world.myName, .text = match->matchComment, .mine = true},
                Bubble{.speaker = match->name, .text = match->pickupLineResponse}};
  if (conversation_) {
    page.nodes.push_back(Bubble{
        .speaker = world.myName, .text = conversation_->followUp, .mine = true, .letterTime = letterTime});
    page.nodes.push_back(
        Bubble{.speaker = match->name,
               .text = conversation_->reply,
               .letterTime = letterTime,
               .delay = letterTime * static_cast<double>(conversation_->followUp.size()) + readingTime});
    if (match->interested == 0) {
      page.nodes.push_back(
          caption(tb::format("Together, you have {:+} energy every week.", match->energyBonus)));
    }
  }
  page.main = {mainButton(*match)};
  return page;
}

}  // namespace tb
