#include "screens/work/active_audition_view_controller.h"

#include <array>
#include <format>
#include <vector>

#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/work/audition_detail_view_controller.h"
#include "screens/work/open_project.h"
#include "screens/work/post_release_audition_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

struct FunnelList {
  const char* title;
  std::int64_t lowestStage;
  std::int64_t highestStage;
  const char* whenEmpty;
};

constexpr std::array<FunnelList, 4> funnelLists = {{
    {.title = "All Applications",
     .lowestStage = funnel::closed,
     .highestStage = funnel::wrapped,
     .whenEmpty = "You have not applied for anything yet. Roles to submit for are behind the B at the "
                  "top right."},
    {.title = "Upcoming Auditions",
     .lowestStage = funnel::invited,
     .highestStage = funnel::invited,
     .whenEmpty = "Nobody has asked you in yet."},
    {.title = "Bookings",
     .lowestStage = funnel::booked,
     .highestStage = funnel::booked,
     .whenEmpty = "You are not booked for anything."},
    {.title = "Releases",
     .lowestStage = funnel::wrapped,
     .highestStage = funnel::wrapped,
     .whenEmpty = "Nothing of yours has wrapped yet."},
}};

// Where the projects of a list stand, newest first.
std::vector<std::size_t> projectsOf(const WorldState& world, const FunnelList& list) {
  std::vector<std::size_t> places;
  for (std::size_t index = world.saveAllAuditionList.size(); index-- > 0;) {
    const Audition& project = world.saveAllAuditionList[index];
    const bool listed = project.funnelStage >= list.lowestStage && project.funnelStage <= list.highestStage;
    if (listed && project.didAct == 1) places.push_back(index);
  }
  return places;
}

Row projectRow(const WorldState& world, const Audition& project) {
  return {.label = titleWithSeason(project),
          .value = progressWords(world, project),
          .detail = std::format("{} • {}", typeName(project.typeOfFilm), project.role),
          .picture = {posterOf(world, project)},
          .tone = isOver(world, project) ? Tone::quiet : Tone::plain,
          .press = [id = project.filmId](Stage& stage) { openProject(stage, id); }};
}

}  // namespace

Choice ActiveAuditionViewController::lists() {
  Choice choice{.label = "Show"};
  for (std::size_t index = 0; index < funnelLists.size(); ++index) {
    choice.options.push_back({.label = funnelLists[index].title,
                              .chosen = index == list_,
                              .press = [this, index](Stage&) { list_ = index; }});
  }
  return choice;
}

Page ActiveAuditionViewController::view(const Game& game) {
  const FunnelList& list = funnelLists[list_];
  const std::vector<std::size_t> projects = projectsOf(game.world, list);
  return {.title = "Auditions",
          .subtitle = list.title,
          .nodes = {lists(), PagedList{.key = list.title,
                                       .size = projects.size(),
                                       .nodeAt =
                                           [&game, projects](std::size_t index) {
                                             return projectRow(
                                                 game.world, game.world.saveAllAuditionList[projects[index]]);
                                           },
                                       .whenEmpty = list.whenEmpty}}};
}

}  // namespace tb
