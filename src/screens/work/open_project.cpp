#include "screens/work/open_project.h"

#include "core/find.h"
#include "core/format.h"
#include "screens/poster.h"
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

view::Row projectRow(const WorldState& world, const Audition& project) {
  return {.label = titleWithSeason(project),
          .value = progressWords(world, project),
          .detail = tb::format("{} • {}", typeName(project.typeOfFilm), project.role),
          .picture = {posterOf(world, project)},
          .tone = isOver(world, project) ? view::Tone::quiet : view::Tone::plain,
          .press = [id = project.filmId](Stage& stage) { openProject(stage, id); }};
}

}  // namespace tb
