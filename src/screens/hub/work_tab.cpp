#include <algorithm>
#include <format>

#include "career/classes.h"
#include "core/number_style.h"
#include "core/talent_scores.h"
#include "screens/hub/tabs.h"
#include "screens/parts.h"
#include "screens/talent/acting_classes_view_controller.h"
#include "screens/talent/talent_traits_view_controller.h"

namespace tb {

namespace {

std::string classesSummary(const WorldState& world) {
  const auto running = std::ranges::count_if(world.saveAllCompletedClasses,
                                             [](const ActingClass& taken) { return taken.weeksRemaining > 0; });
  return running == 0 ? "Learn the craft at Julien" : std::format("{} running", running);
}

}  // namespace

std::vector<view::Node> workTab(const Game& game) {
  const WorldState& world = game.world;
  return {
      view::Tiles{{
          {.label = "Talent", .value = std::to_string(overallTalent(world))},
          {.label = "Experience", .value = plainCount(game.locale, static_cast<std::int64_t>(world.experience))},
          {.label = "Showreel", .value = std::to_string(world.showreelScore)},
      }},
      view::Section{.heading = "CRAFT",
                    .nodes = {leadingTo<TalentTraitsViewController>("Talent", "Five traits, trained with energy"),
                              leadingTo<ActingClassesViewController>("Acting Classes", classesSummary(world))}},
  };
}

}  // namespace tb
