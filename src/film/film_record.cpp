#include "film/film_record.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "core/find.h"
#include "film/networks.h"

namespace tb {

namespace {

constexpr std::array<std::string_view, 3> cinemaRatings = {"PG", "PG-13", "R"};
constexpr std::array<std::string_view, 3> televisionRatings = {"TV-PG", "TV-14", "TV-MA"};

// The possible lengths and age ratings of a type of title. Lengths are in steps of `stepMinutes`.
struct Format {
  std::int64_t typeOfFilm;
  std::int64_t stepMinutes;
  std::int64_t minSteps;
  std::int64_t maxSteps;
  std::span<const std::string_view> ageRatings;
};

// Commercials have no entry: their length is 0 minutes.
constexpr std::array<Format, 4> formats = {{
    {filmType::feature, 1, 65, 200, cinemaRatings},
    {filmType::series, 5, 6, 12, televisionRatings},
    {filmType::studentFilm, 1, 5, 60, {}},
    {filmType::shortFilm, 1, 20, 40, {}},
}};

void drawFormat(Game& game, Film& film) {
  const auto format = std::ranges::find(formats, film.typeOfFilm, &Format::typeOfFilm);
  if (format == formats.end()) return;
  film.lengthMinutes = format->stepMinutes * RandomBetween(game.random, format->minSteps, format->maxSteps);
  if (!format->ageRatings.empty()) film.ageRating = RandomElement(game.random, format->ageRatings);
}

void drawNetwork(Game& game, Film& film) {
  if (film.typeOfFilm != filmType::series) return;
  const auto network = static_cast<std::size_t>(RandomRange(game.random, std::ssize(networks)));
  film.debutNetwork = networks[network];
  film.debutImageString = networkLogos[network];
}

bool isSequel(const Audition& project) {
  return project.typeOfFilm == filmType::feature && project.seasonNumber >= 2 &&
         project.parentSeriesFilmId >= 1;
}

Film filmOf(const WorldState& world, const Audition& project) {
  return {.filmId = project.filmId,
          .imageString = project.imageString,
          .typeOfFilm = project.typeOfFilm,
          .role = project.role,
          .isPrincipal = project.isPrincipal,
          .title = project.title,
          .movieDescription = project.description,
          .cast = {world.myName},
          .genres = project.genres,
          .characterName = project.characterName,
          .numberOfEpisodes = project.numberOfEpisodesActed,
          .parentSeriesId = project.parentSeriesFilmId,
          .directorName = project.directorName,
          .writerName = project.writerName,
          .yearReleased = world.yearNumber,
          .weekReleased = project.weekReleased,
          .budget = project.budget,
          .currentPopularity = project.hypeRating,
          .lastWeekPopularity = project.hypeRating,
          .payment = project.payment,
          .residualRate = project.residual,
          .royaltyRate = project.royalty,
          .sourceId = project.sourceId,
          .parentId = project.parentSeriesFilmId,
          .seasonNumber = project.seasonNumber,
          .sequelNumber = isSequel(project) ? project.seasonNumber : 0,
          .didAct = project.didAct,
          .equityPercentage = project.equityPercentage,
          .equityDollarsInvested = project.equityDollarsInvested,
          .franchise = project.franchise,
          .franchiseId = project.franchiseId};
}

}  // namespace

void addFilm(Game& game, const Audition& project) {
  Film film = filmOf(game.world, project);
  drawFormat(game, film);
  drawNetwork(game, film);
  game.world.saveAllFilmList.push_front(std::move(film));
}

bool isOut(const WorldState& world, const Film& film) {
  return film.weekReleased < world.weekNumberForTracking;
}

std::string mainGenre(const Film& film) { return film.genres.empty() ? "" : film.genres.front(); }

double meanScore(const Film& film) {
  return (film.imbdRating + static_cast<double>(film.imbdMetascore) / 10) * 0.5;
}

double qualityOf(const Film& film) {
  return (film.imbdRating * 10 + static_cast<double>(film.imbdMetascore)) * 0.5;
}

}  // namespace tb
