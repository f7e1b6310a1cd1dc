
#include "core/format.h"
#include "core/number_style.h"
#include "core/talent_scores.h"
#include "core/text.h"
#include "screens/headshot.h"
#include "screens/hub/agenda_rows.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"

namespace tb {

namespace {

using namespace view;

// About two weeks: in a terminal the page ends here, and what it begins with is still to be seen.
constexpr std::size_t storyLines = 10;

Tiles careerTiles(const WorldState& world) {
  return {
      {{.label = "Fans", .value = shortCount(world.totalFans)}, scoreTile("Talent", overallTalent(world))}};
}

Card profile(const WorldState& world) {
  return {.title = tb::format("{} years old", world.ageCount),
          .subtitle = world.aboutDescription,
          .picture = {performerPicture(world)}};
}

// The log has a date line such as "JANUARY 2, 2026" above each week's lines.
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
    return Text{.text = line, .style = Text::Style::heading, .tone = Tone::accent};
  return Text{.text = line};
}

PagedList activityLog(const Game& game) {
  return {.key = "activity",
          .size = game.world.activityTracker.size(),
          .nodeAt = [&game](std::size_t index) { return activityNode(game, index); },
          .whenEmpty = "Your story starts here. This log keeps what your career brings, week by week.",
          .pageLength = storyLines};
}

}  // namespace

std::vector<Node> homeTab(const Game& game) {
  std::vector<Node> nodes = {thisWeek(game)};
  nodes.append_range(lastWeek(game));
  nodes.append_range(std::vector<Node>{Section{.nodes = {profile(game.world), careerTiles(game.world)}},
                                       Section{.heading = "STORY SO FAR", .nodes = {activityLog(game)}}});
  return nodes;
}

}  // namespace tb
