#include "screens/chirp/create_chirp_message_view_controller.h"

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/headshot.h"
#include "screens/parts.h"
#include "social/chirp_posts.h"

namespace tb {

using namespace view;

void CreateChirpMessageViewController::post(Stage& stage) {
  if (Refusal refusal = postChirp(stage.game(), text_)) return stage.show(std::move(refusal));
  const Chirp& posted = stage.game().world.saveAllChirpList.back();
  stage.say(tb::format("Posted: {} likes so far", shortCount(posted.likeCount)));
  stage.close();
}

Page CreateChirpMessageViewController::view(const Game& game) {
  return {.title = "New Chirp",
          .nodes = {Field{.label = "What's Happening?",
                          .value = text_,
                          .type = [this](Stage&, const std::string& text) { text_ = text; },
                          .maximumLength = 280,
                          .severalLines = true},
                    Button{.label = "Suggest something",
                           .press = [this](Stage& stage) { text_ = suggestedChirp(stage.game()); },
                           .weight = Button::Weight::quiet}},
          .main = {{.label = "Post",
                    .press = [this](Stage& stage) { post(stage); },
                    .price = energyPrice(chirpEnergy),
                    .refusal = briefOf(chirpRefusal(game.world)),
                    .weight = Button::Weight::primary}}};
}

}  // namespace tb
