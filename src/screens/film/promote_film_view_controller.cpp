#include "screens/film/promote_film_view_controller.h"

#include "core/format.h"
#include "screens/parts.h"
#include "screens/poster.h"

namespace tb {

using namespace view;

void PromoteFilmViewController::load(Stage& stage) {
  const WorldState& world = stage.game().world;
  audition_ = static_cast<std::size_t>(world.selectedAuditionIndex);
  interview_ = openInterview(stage.game(), world.saveAllAuditionList[audition_]);
}

void PromoteFilmViewController::post(Stage& stage) {
  const WorldState& world = stage.game().world;
  if (Refusal refusal =
          promoteFilm(stage.game(), world.saveAllAuditionList[audition_].filmId, interview_, answer_)) {
    return stage.show(std::move(refusal));
  }
  stage.say(tb::format("Your interview on {} added {} to the hype for {}.", interview_.talkShow,
                       interview_.totalHype, world.saveAllAuditionList[audition_].title));
  stage.close();
}

std::optional<Screen::Leaving> PromoteFilmViewController::beforeLeaving() const {
  return Leaving{.question = {.title = "🎤 Leave the Show? 🎤",
                              .message = "\nThe host is still waiting for your answer. The energy for this "
                                         "interview is spent, and without an answer it brings nothing."},
                 .stay = "Stay",
                 .leave = "Leave"};
}

Page PromoteFilmViewController::view(const Game& game) {
  const Audition& project = game.world.saveAllAuditionList[audition_];
  Picture poster = posterOf(game.world, project);
  poster.description = project.title;
  return {.title = interview_.talkShow,
          .subtitle = "Promoting " + project.title,
          .nodes = {poster, Bubble{.speaker = interview_.talkShow, .text = interview_.question},
                    Field{.label = "Your answer",
                          .value = answer_,
                          .type = [this](Stage&, const std::string& text) { answer_ = text; },
                          .hint = "Everything you say will be quoted",
                          .maximumLength = 280,
                          .severalLines = true},
                    Button{.label = "Suggest an answer",
                           .press = [this](Stage& stage) { answer_ = suggestedAnswer(stage.game()); },
                           .weight = Button::Weight::quiet}},
          .main = {{.label = "Post",
                    .press = [this](Stage& stage) { post(stage); },
                    .name = "Post your answer about " + project.title,
                    .weight = Button::Weight::primary}}};
}

}  // namespace tb
