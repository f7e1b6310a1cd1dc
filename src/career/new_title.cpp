#include "career/new_title.h"

namespace tb {

MadeTitles madeTitles(const WorldState& world) {
  MadeTitles made;
  for (const Film& film : world.saveAllFilmList) made.insert(film.title);
  for (const Audition& project : world.saveAllAuditionList) {
    if (project.funnelStage >= funnel::booked) made.insert(project.title);
  }
  return made;
}

}  // namespace tb
