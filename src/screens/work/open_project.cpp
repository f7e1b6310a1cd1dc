#include "screens/work/open_project.h"

#include "core/find.h"
#include "screens/work/audition_detail_view_controller.h"
#include "screens/work/post_release_audition_view_controller.h"
#include "screens/work/project_words.h"

namespace tb {

void openProject(Stage& stage, std::int64_t filmId) {
  const WorldState& world = stage.game().world;
  const auto index = find(world.saveAllAuditionList, &Audition::filmId, filmId);
  if (!index) return;
  if (isReleased(world, world.saveAllAuditionList[*index])) {
    stage.open<PostReleaseAuditionViewController>(filmId);
  } else {
    stage.open<AuditionDetailViewController>(filmId);
  }
}

Operation leadingToProject(const WorldState& world, std::int64_t filmId) {
  if (!find(world.saveAllAuditionList, &Audition::filmId, filmId)) return {};
  return [filmId](Stage& stage) { openProject(stage, filmId); };
}

}  // namespace tb
