#include "screens/work/active_audition_view_controller.h"

#include <algorithm>
#include <array>
#include <vector>

#include "screens/parts.h"
#include "screens/work/audition_detail_view_controller.h"
#include "screens/work/open_project.h"
#include "screens/work/post_release_audition_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

using namespace view;

namespace {

using Listed = ActiveAuditionViewController::List;

struct FunnelList {
  const char* title;
  const char* whenEmpty;
};

// By List.
constexpr std::array<FunnelList, 5> funnelLists = {{
    {.title = "All Applications",
     .whenEmpty = "You have not applied for anything yet. Roles to submit for are behind the B at the "
                  "top right."},
    {.title = "Upcoming Auditions", .whenEmpty = "You have no invitations yet."},
    {.title = "Bookings", .whenEmpty = "You are not booked for anything."},
    {.title = "Releases", .whenEmpty = "None of your projects has wrapped yet."},
    {.title = "Not Selected", .whenEmpty = "You have not lost any roles."},
}};

const FunnelList& funnelList(Listed list) { return funnelLists[static_cast<std::size_t>(list)]; }

bool isListed(const WorldState& world, const Audition& project, Listed list) {
  if (project.didAct != 1) return false;
  switch (list) {
    case Listed::all:
      return true;
    case Listed::upcoming:
      return project.funnelStage == funnel::invited && !isOver(world, project);
    case Listed::bookings:
      return project.funnelStage == funnel::booked;
    case Listed::releases:
      return project.funnelStage == funnel::wrapped;
    case Listed::notSelected:
      return project.funnelStage == funnel::invited && isOver(world, project);
  }
}

// The week to sort a list by, soonest first; 0 for an unsorted list.
std::int64_t weekAhead(const Audition& project, Listed list) {
  return list == Listed::upcoming ? project.weekAudition : list == Listed::bookings ? project.weekToWork : 0;
}

// Indexes of a list's projects, soonest first, or newest first in unsorted lists.
std::vector<std::size_t> projectsOf(const WorldState& world, Listed list) {
  const auto& projects = world.saveAllAuditionList;
  std::vector<std::size_t> places;
  for (std::size_t index = projects.size(); index-- > 0;) {
    if (isListed(world, projects[index], list)) places.push_back(index);
  }
  std::ranges::stable_sort(places, {}, [&](std::size_t index) { return weekAhead(projects[index], list); });
  return places;
}

}  // namespace

void openNotSelected(Stage& stage) { stage.open<ActiveAuditionViewController>(Listed::notSelected); }

Choice ActiveAuditionViewController::lists() {
  Choice choice{.label = "Show"};
  for (std::size_t index = 0; index < funnelLists.size(); ++index) {
    choice.options.push_back({.label = funnelLists[index].title,
                              .chosen = index == static_cast<std::size_t>(list_),
                              .press = [this, index](Stage&) { list_ = static_cast<List>(index); }});
  }
  return choice;
}

Page ActiveAuditionViewController::view(const Game& game) {
  const FunnelList& list = funnelList(list_);
  const std::vector<std::size_t> projects = projectsOf(game.world, list_);
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
