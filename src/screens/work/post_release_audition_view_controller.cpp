#include "screens/work/post_release_audition_view_controller.h"

#include "core/find.h"
#include "core/format.h"
#include "film/film_record.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/reception/imbd_film_detail_view_controller.h"
#include "screens/work/project_words.h"
#include "screens/work/release_figures.h"
#include "screens/work/syndication_section.h"

namespace tb {

using namespace view;

namespace {

Section reception(const WorldState& world, const Audition& project) {
  Section section{.heading = "RECEPTION"};
  const auto index = find(world.saveAllFilmList, &Film::filmId, project.filmId);
  if (!index) return section;
  const Film& film = world.saveAllFilmList[*index];
  constexpr int starsOfRating = 10;
  section.nodes = {Stars{.label = "Viewers", .value = film.imbdRating, .outOf = starsOfRating},
                   scoreMeter("Critics", film.imbdMetascore)};
  for (const std::string& review : film.featuredReviews) {
    if (!review.empty()) section.nodes.push_back(Text{.text = review, .style = Text::Style::quotation});
  }
  section.nodes.push_back(Row{.label = "Imbd page",
                              .detail = "Ratings, reviews and details",
                              .press = [id = film.filmId](Stage& stage) { openTitlePage(stage, id); }});
  return section;
}

// Later seasons and films of a saga refer to the film id of the first one.
bool isEarlierInstalment(const Audition& earlier, const Audition& project) {
  const bool same = earlier.filmId == project.parentSeriesFilmId ||
                    earlier.parentSeriesFilmId == project.parentSeriesFilmId;
  return project.parentSeriesFilmId != -1 && same && earlier.seasonNumber < project.seasonNumber;
}

Section earlierInstalments(const WorldState& world, const Audition& project) {
  Section section{.heading = "WHAT CAME BEFORE"};
  for (const Audition& earlier : world.saveAllAuditionList) {
    if (!isEarlierInstalment(earlier, project)) continue;
    section.nodes.push_back(Row{
        .label = titleWithSeason(earlier),
        .value = progressWords(world, earlier),
        .picture = {posterOf(world, earlier)},
        .press = [id = earlier.filmId](Stage& stage) { stage.open<PostReleaseAuditionViewController>(id); }});
  }
  return section;
}

bool hasFigures(const Audition& project) {
  return project.typeOfFilm == filmType::feature || project.typeOfFilm == filmType::series;
}

}  // namespace

Page PostReleaseAuditionViewController::view(const Game& game) {
  const auto index = find(game.world.saveAllAuditionList, &Audition::filmId, film_id_);
  if (!index) return {.title = "Auditions", .nodes = {caption("This project is not on your list anymore.")}};
  const Audition& project = game.world.saveAllAuditionList[*index];
  Page page{.title = titleWithSeason(project),
            .subtitle = tb::format("{} • {} • {}", typeName(project.typeOfFilm), project.role,
                                   progressWords(game.world, project))};
  page.nodes = {posterOf(game.world, project)};
  if (hasFigures(project)) {
    const ReleaseFigures figures = figuresOf(game.world, project);
    page.nodes.push_back(figureTiles(game, project, figures));
    page.nodes.push_back(figureChart(game, project, figures));
  }
  page.nodes.push_back(reception(game.world, project));
  if (auto syndication = syndicationSection(game, project.filmId)) {
    page.nodes.push_back(*std::move(syndication));
  }
  Section before = earlierInstalments(game.world, project);
  if (!before.nodes.empty()) page.nodes.push_back(std::move(before));
  return page;
}

}  // namespace tb
