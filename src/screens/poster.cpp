#include "screens/poster.h"

#include "core/find.h"
#include "film/film_record.h"

namespace tb {

using view::Picture;
using view::PictureKind;
using view::PosterFormat;

namespace {

PosterFormat formatOf(std::int64_t typeOfFilm) {
  switch (typeOfFilm) {
    case filmType::series:
      return PosterFormat::series;
    case filmType::commercial:
      return PosterFormat::commercial;
    case filmType::studentFilm:
      return PosterFormat::student;
    case filmType::shortFilm:
      return PosterFormat::shortFilm;
    default:
      return PosterFormat::feature;
  }
}

std::string mainGenre(const std::vector<std::string>& genres) { return genres.empty() ? "" : genres.front(); }

// For an Audition and for its Film, which have the same poster.
template <class Work>
Picture posterOfOwn(const WorldState& world, const Work& work, bool isTaken) {
  const bool renewed = work.typeOfFilm == filmType::series && work.seasonNumber >= 2;
  const bool billed = isTaken && work.isPrincipal != rolePart::background;
  return {.kind = PictureKind::poster,
          .name = work.imageString,
          .title = work.title,
          .genre = mainGenre(work.genres),
          .format = formatOf(work.typeOfFilm),
          .season = renewed ? static_cast<int>(work.seasonNumber) : 0,
          .billed = billed ? world.myName : ""};
}

}  // namespace

Picture posterOf(const Movie& movie) {
  return {.kind = PictureKind::poster,
          .name = movie.imageString,
          .title = movie.title,
          .genre = mainGenre(movie.genre),
          .format = formatOf(movie.type)};
}

Picture posterOf(const MovieFranchise& film) {
  return {.kind = PictureKind::poster,
          .name = film.imageString,
          .title = film.title,
          .genre = mainGenre(film.genre)};
}

Picture posterOf(const CatalogueTitle& title) {
  return {.kind = PictureKind::poster, .name = title.imageString, .title = title.title, .genre = title.genre};
}

Picture posterOf(const WorldState& world, const Audition& project) {
  const bool taken = project.funnelStage == funnel::booked || project.funnelStage == funnel::wrapped;
  return posterOfOwn(world, project, taken);
}

Picture posterOf(const WorldState& world, const Film& film) { return posterOfOwn(world, film, true); }

Picture posterOfFilm(const WorldState& world, std::int64_t filmId, const std::string& imageString) {
  const auto index = find(world.saveAllFilmList, &Film::filmId, filmId);
  if (index) return posterOf(world, world.saveAllFilmList[*index]);
  return {.kind = PictureKind::poster, .name = imageString};
}

}  // namespace tb
