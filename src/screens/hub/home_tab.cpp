#include <format>

#include "core/number_style.h"
#include "core/talent_scores.h"
#include "core/text.h"
#include "screens/headshot.h"
#include "screens/hub/tabs.h"
#include "screens/hub/view_controller.h"
#include "screens/parts.h"

namespace tb {

namespace {

using namespace view;

Tiles careerTiles(const Game& game) {
  const WorldState& world = game.world;
  return {{
      {.label = "Cash",
       .value = cash(game.locale, world.totalCashAvailable),
       .tone = world.totalCashAvailable < 0 ? Tone::warning : Tone::plain},
      {.label = "Fans", .value = shortCount(world.totalFans)},
      {.label = "Talent", .value = std::to_string(overallTalent(world))},
  }};
}

Card profile(const WorldState& world) {
  return {.title = std::format("{} years old", world.ageCount),
          .subtitle = world.aboutDescription,
          .picture = {performerPicture(world)}};
}

Card jobCard(const Game& game) {
  const WorldState& world = game.world;
  return {.title = world.weeklyJobTitle,
          .subtitle = std::format("{} a week • {} energy a week",
                                  shortMoney(game.locale, world.weeklyJobIncome), world.weeklyEnergyCost),
          .nodes = {caption(jobWeeksLeft(world))}};
}

// The log mixes lines and, over the lines of each week, its date: "JANUARY 2, 2026".
bool isDateHeading(const Locale& locale, const std::string& line) {
  for (const std::string& month : locale.monthCapitals) {
    const std::string start = month + " ";
    if (line.starts_with(start) &&
        line.find_first_not_of("0123456789, ", start.size()) == std::string::npos) {
      return true;
    }
  }
  return false;
}

Node activityNode(const Game& game, std::size_t index) {
  const std::string& line = game.world.activityTracker[index];
  if (isDateHeading(game.locale, line))
    return Text{.text = line, .style = Text::Style::large, .tone = Tone::accent};
  return Text{.text = line};
}

PagedList activityLog(const Game& game) {
  return {.key = "activity",
          .size = game.world.activityTracker.size(),
          .nodeAt = [&game](std::size_t index) { return activityNode(game, index); },
          .whenEmpty = "Your story starts here. This log keeps what your career brings, week by week."};
}

}  // namespace

std::vector<Node> homeTab(const Game& game) {
  std::vector<Node> nodes = {profile(game.world), careerTiles(game), energyMeter(game.world)};
  if (!game.world.weeklyJobTitle.empty()) nodes.push_back(jobCard(game));
  nodes.push_back(
      Button{.label = "End Week", .press = ViewController::endWeekButton, .weight = Button::Weight::primary});
  nodes.push_back(Section{.heading = "ACTIVITY", .nodes = {activityLog(game)}});
  return nodes;
}

}  // namespace tb
