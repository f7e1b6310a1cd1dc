#include "screens/work/open_project.h"

#include <memory>

#include "core/audition_list.h"
#include "screens/work/audition_detail_view_controller.h"
#include "screens/work/post_release_audition_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

void openProject(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  const auto project = auditionIndex(world, filmId);
  if (!project) return;
  if (isReleased(world, world.saveAllAuditionList[*project])) {
    stage.open(std::make_unique<PostReleaseAuditionViewController>(filmId));
  } else {
    stage.open(std::make_unique<AuditionDetailViewController>(filmId));
  }
}

Operation leadingToProject(const WorldState& world, std::int64_t filmId) {
  if (!auditionIndex(world, filmId)) return {};
  return [filmId](Stage& stage) { openProject(stage, filmId); };
}

}  // namespace tb
