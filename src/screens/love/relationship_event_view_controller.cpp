#include "screens/love/relationship_event_view_controller.h"

#include <cmath>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "life/partner.h"
#include "screens/love/love_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

// What is at stake, without telling which option brings what.
std::string stakeWords(const Locale& locale, const RelationshipScenario& scenario) {
  switch (scenario.category) {
    case question::money:
      return tb::format("One of these costs {}, the other {} to {} points of your relationship.",
                        wholeMoney(locale, scenario.amount), leastQuestionPoints, mostQuestionPoints);
    case question::followers:
      return "People will hear of it whatever you do.";
    case question::fame:
      return "The press will write about it whatever you do.";
    default:
      return tb::format("One of these brings you {} to {} points closer, the other as far apart.",
                        leastQuestionPoints, mostQuestionPoints);
  }
}

StatTile effectTile(const RelationshipScenario& scenario, const QuestionAnswer& answer) {
  const auto tone = [](double change) { return change < 0 ? Tone::warning : Tone::good; };
  switch (scenario.category) {
    case question::followers:
      return {
          .label = "Fans", .value = answer.note, .tone = tone(static_cast<double>(scenario.followerChange))};
    case question::fame:
      return {.label = "Fame in the press",
              .value = tb::format("{}{:.1f}", scenario.fameChange < 0 ? "" : "+", scenario.fameChange),
              .tone = tone(scenario.fameChange)};
    default:
      if (!answer.note.empty()) return {.label = "Cash", .value = answer.note, .tone = Tone::warning};
      return {.label = "Relationship",
              .value = tb::format("{:+}", static_cast<std::int64_t>(answer.meter)),
              .tone = tone(answer.meter)};
  }
}

}  // namespace

void RelationshipEventViewController::load(Stage& stage) {
  scenario_ = drawRelationshipQuestion(stage.game());
}

std::optional<Screen::Leaving> RelationshipEventViewController::beforeLeaving() const {
  if (answer_) return {};
  return Leaving{
      .question = {.title = "💬 No Answer? 💬", .message = "\nThe moment passes, and so does the energy."},
      .stay = "Stay",
      .leave = "Leave"};
}

Button RelationshipEventViewController::optionButton(const Game& game, QuestionOption option) {
  const bool isA = option == QuestionOption::a;
  Button button{.label = isA ? scenario_.optionA : scenario_.optionB, .press = [this, option](Stage& stage) {
                  chosen_ = option;
                  answer_ = answerQuestion(stage.game(), scenario_, option);
                }};
  if (isA && scenario_.category == question::money) button.price = moneyPrice(game.locale, scenario_.amount);
  return button;
}

Page RelationshipEventViewController::view(const Game& game) {
  const WorldState& world = game.world;
  const Matches* const partner = currentPartner(world);
  Page page{.title = "Relationship"};
  if (partner == nullptr) {
    page.nodes = {caption("You are single.")};
    return page;
  }
  page.nodes = {
      Card{.title = partner->name, .picture = {portraitOf(*partner)}, .nodes = {meterNode(*partner)}},
      Text{.text = questionWords(world, scenario_), .style = Text::Style::large}};
  if (answer_) {
    const std::string& said = chosen_ == QuestionOption::a ? scenario_.optionA : scenario_.optionB;
    page.nodes.append_range(
        std::vector<Node>{Bubble{.speaker = world.myName, .text = said, .mine = true},
                          Bubble{.speaker = partner->name, .text = answer_->reply, .letterTime = letterTime},
                          Tiles{{effectTile(scenario_, *answer_)}}});
    page.main = {{.label = "Carry on",
                  .press = [](Stage& stage) { stage.close(); },
                  .weight = Button::Weight::primary}};
    return page;
  }
  // The closer option is A, so that the order changes from week to week.
  const bool isAFirst = world.weekNumberForTracking % 2 == 0;
  page.nodes.append_range(std::vector<Node>{
      optionButton(game, isAFirst ? QuestionOption::a : QuestionOption::b),
      optionButton(game, isAFirst ? QuestionOption::b : QuestionOption::a),
      caption(stakeWords(game.locale, scenario_)),
  });
  return page;
}

}  // namespace tb
