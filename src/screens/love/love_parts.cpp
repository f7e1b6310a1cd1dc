#include "screens/love/love_parts.h"

#include <utility>

#include "core/calendar.h"
#include "core/format.h"
#include "life/partner.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

Picture portraitOf(const Matches& match) { return {.kind = PictureKind::avatar, .name = match.matchImage}; }

Picture childPicture(const WorldState& world, const Child& child) {
  const std::int64_t weeks = world.weekNumberForTracking - child.birthWeekForTracking;
  return {
      .kind = PictureKind::avatar, .name = child.imageString, .age = static_cast<int>(weeks / weeksPerYear)};
}

Meter meterNode(const Matches& partner) { return scoreMeter("Relationship", shownMeter(partner)); }

std::string togetherWords(const WorldState& world, const Matches& partner) {
  const std::string time = spanWords(weeksTogether(world, partner));
  switch (partner.relationshipState) {
    case bond::engaged:
      return tb::format("Engaged (together for {})", time);
    case bond::married:
      return tb::format("Married (together for {})", time);
    default:
      return "Together for " + time;
  }
}

std::string agoWords(const WorldState& world, std::int64_t week) {
  constexpr std::int64_t monthsFrom = 4;
  const std::int64_t weeks = world.weekNumberForTracking - week;
  return weeks < 1 ? "this week" : spanWords(weeks, monthsFrom) + " ago";
}

Node promptNode(const Matches& match) {
  return Card{.subtitle = match.matchPrompt,
              .nodes = {Text{.text = match.matchPromptResponse, .style = Text::Style::large}}};
}

Moment glow(std::string title, std::string line, Picture picture) {
  return {.scene = Moment::Scene::glow,
          .title = std::move(title),
          .line = std::move(line),
          .picture = {std::move(picture)}};
}

void tellSeparation(Stage& stage, const std::optional<Separation>& separation) {
  if (!separation) return;
  tellScandal(stage, separation->notice, "SPLIT",
              tb::format("{} and {}: it is over", stage.game().world.myName, separation->partner.name),
              portraitOf(separation->partner));
}

void tellScandal(Stage& stage, Notice notice, std::string title, std::string line, Picture picture) {
  Moment moment{.scene = Moment::Scene::tabloid,
                .title = std::move(title),
                .line = std::move(line),
                .picture = {std::move(picture)}};
  stage.ask(std::move(notice), {{.label = "OK",
                                 .press = [moment = std::move(moment)](Stage& told) { told.play(moment); },
                                 .weight = Button::Weight::primary}});
}

}  // namespace tb
