#include "screens/week/random_event_view_controller.h"

#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

Tiles standing(const Game& game) {
  const WorldState& world = game.world;
  return {{scoreTile("Public image", world.publicImage),
           {.label = "Cash",
            .value = cash(game.locale, world.totalCashAvailable),
            .tone = world.totalCashAvailable < 0 ? Tone::warning : Tone::plain}}};
}

}  // namespace

void RandomEventViewController::load(Stage& stage) { scenario_ = drawEventScenario(stage.game()); }

void RandomEventViewController::choose(Stage& stage, EventChoice choice) {
  if (Refusal refusal = eventChoiceRefusal(stage.game().world, scenario_, choice)) {
    return stage.show(std::move(refusal));
  }
  choice_ = choice;
  result_ = chooseEventOption(stage.game(), scenario_, choice);
}

Card RandomEventViewController::optionCard(const Game& game, EventChoice choice) {
  const bool isA = choice == EventChoice::a;
  std::string option = capitalized(isA ? scenario_.optionA : scenario_.optionB);
  Button button{.label = "Do this",
                .press = [this, choice](Stage& stage) { choose(stage, choice); },
                .refusal = briefOf(eventChoiceRefusal(game.world, scenario_, choice)),
                .name = "Do this: " + option};
  if (isA && scenario_.amount > 0) {
    button.price.amount = tb::format("COST {}", wholeMoney(game.locale, scenario_.amount));
  }
  return {.title = std::move(option), .nodes = {std::move(button)}};
}

// The option that helps is not always the upper one.
std::vector<Node> RandomEventViewController::options(const Game& game) {
  std::vector<Node> cards = {optionCard(game, EventChoice::a), optionCard(game, EventChoice::b)};
  if (game.world.weekNumberForTracking % 2 == 0) std::swap(cards.front(), cards.back());
  return cards;
}

Headline RandomEventViewController::resultHeadline() const {
  const bool isSaved = choice_ == EventChoice::a;
  return {.stamp = isSaved ? "SMOOTHED OVER" : "IT GOT AROUND",
          .text = result_,
          .value = tb::format("{:+}", isSaved ? scenario_.reputation : -scenario_.reputation),
          .tone = isSaved ? Tone::good : Tone::warning,
          .isLead = true};
}

Page RandomEventViewController::view(const Game& game) {
  Page page{.title = "PUBLIC RELATIONS",
            .subtitle = "A story about you is about to go around",
            .head = Page::Head::line};
  if (!result_.empty()) {
    page.nodes = {resultHeadline(), standing(game)};
    page.main = {{.label = "Carry on",
                  .press = [](Stage& stage) { stage.close(); },
                  .weight = Button::Weight::primary}};
    return page;
  }
  page.nodes = {
      Headline{.stamp = "YOUR CALL",
               .text = scenario_.questionTemplate,
               .detail = tb::format("At stake: {} of public image", counted(scenario_.reputation, "point")),
               .tone = Tone::accent,
               .isLead = true},
      standing(game)};
  page.nodes.append_range(options(game));
  return page;
}

}  // namespace tb
