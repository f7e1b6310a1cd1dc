#include "screens/work/open_project.h"

#include <algorithm>
#include <memory>

#include "screens/work/audition_detail_view_controller.h"
#include "screens/work/post_release_audition_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

void openProject(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  const auto project = std::ranges::find(world.saveAllAuditionList, filmId, &Audition::filmId);
  if (project == world.saveAllAuditionList.end()) return;
  if (isReleased(world, *project)) {
    stage.open(std::make_unique<PostReleaseAuditionViewController>(filmId));
  } else {
    stage.open(std::make_unique<AuditionDetailViewController>(filmId));
  }
}

Operation leadingToProject(const WorldState& world, std::int64_t filmId) {
  if (!std::ranges::contains(world.saveAllAuditionList, filmId, &Audition::filmId)) return {};
  return [filmId](Stage& stage) { openProject(stage, filmId); };
}

}  // namespace tb
