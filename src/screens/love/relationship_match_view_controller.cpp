#include "screens/love/relationship_match_view_controller.h"

#include <utility>

#include "core/format.h"
#include "life/latch.h"
#include "screens/love/love_parts.h"
#include "screens/love/person_nodes.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

void RelationshipMatchViewController::send(Stage& stage) {
  is_sent_ = true;
  stage.show(sendFirstLine(stage.game(), match_, line_));
  stage.close();
}

std::optional<Screen::Leaving> RelationshipMatchViewController::beforeLeaving() const {
  if (is_sent_) return {};
  return Leaving{
      .question = {.title = "🌹 Not a Word? 🌹",
                   .message = tb::format("\n{} won't wait. The match is gone when you leave without "
                                         "a first line.",
                                         match_.name)},
      .stay = "Stay",
      .leave = "Leave"};
}

Page RelationshipMatchViewController::view(const Game& game) {
  Page page{.title = "It's a Match", .subtitle = "You and " + match_.name};
  page.nodes = {Card{.title = match_.name,
                     .subtitle = tb::format("{} years old", match_.age),
                     .picture = {portraitOf(match_)},
                     .nodes = personNodes(game, match_)},
                promptNode(match_),
                Field{.label = "Your first line",
                      .value = line_,
                      .type = [this](Stage&, const std::string& text) { line_ = text; },
                      .hint = "Or send nothing of your own, and Latch finds something",
                      .maximumLength = 140,
                      .severalLines = true},
                Button{.label = "Suggest something",
                       .press = [this](Stage& stage) { line_ = suggestedLine(stage.game()); },
                       .weight = Button::Weight::quiet}};
  page.main = {
      {.label = "SEND", .press = [this](Stage& stage) { send(stage); }, .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
