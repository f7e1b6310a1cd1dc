#include "film/awards.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "banks/awards_banks.h"
#include "banks/names.h"
#include "core/descending.h"

namespace tb {

namespace {

constexpr std::int64_t anyGender = -1;
constexpr std::int64_t male = 0;
constexpr std::int64_t female = 1;

constexpr std::array<AwardOption, 14> options = {{
    {filmType::feature, "Cademy Awards", "Actor in a Leading Role", male, "Lead", Prize::lead},
    {filmType::feature, "Cademy Awards", "Actor in a Supporting Role", male, "Support", Prize::support},
    {filmType::feature, "Cademy Awards", "Actress in a Leading Role", female, "Lead", Prize::lead},
    {filmType::feature, "Cademy Awards", "Actress in a Supporting Role", female, "Support", Prize::support},
    {filmType::feature, "Cademy Awards", "Directing", anyGender, "Movie", Prize::directing},
    {filmType::feature, "Cademy Awards", "Best Picture", anyGender, "Movie", Prize::work},
    {filmType::feature, "Cademy Awards", "Writing (Original Screenplay)", anyGender, "Movie", Prize::writing},
    {filmType::series, "Emme Awards", "Outstanding Drama Series", anyGender, "TV", Prize::work},
    {filmType::series, "Emme Awards", "Outstanding Directing For A Drama Series", anyGender, "TV",
     Prize::directing},
    {filmType::series, "Emme Awards", "Outstanding Writing For A Drama Series", anyGender, "TV",
     Prize::writing},
    {filmType::series, "Emme Awards", "Outstanding Lead Actor In A Drama Series", male, "Lead", Prize::lead},
    {filmType::series, "Emme Awards", "Outstanding Lead Actress In A Drama Series", female, "Lead",
     Prize::lead},
    {filmType::series, "Emme Awards", "Outstanding Supporting Actor In A Drama Series", male, "Support",
     Prize::support},
    {filmType::series, "Emme Awards", "Outstanding Supporting Actress In A Drama Series", female, "Support",
     Prize::support},
}};

constexpr std::int64_t leastMetascore = 85;
constexpr std::int64_t nominationRoll = 121;  // a nomination takes RandomRange(121) below the metascore
constexpr std::size_t rivals = 3;

// A year's nominations of one show. An acting prize is taken with its first nomination, another one when it
// is won.
struct Show {
  Game& game;
  std::array<bool, 5> isTaken = {};  // by Prize

  bool& taken(Prize prize) { return isTaken[static_cast<std::size_t>(prize)]; }
};

std::string nomineeOf(const WorldState& world, const Film& film, const AwardOption& option) {
  if (isActing(option)) return world.myName;
  return option.prize == Prize::writing ? film.writerName : film.directorName;
}

// Draws three different titles.
std::vector<std::string> drawRivalTitles(RandomSource& random) {
  const auto rows = rowsOf(bank::rivalTitles);
  std::vector<std::string> drawn;
  while (drawn.size() < rivals) {
    auto row = static_cast<std::size_t>(RandomRange(random, std::ssize(rows)));
    while (std::ranges::contains(drawn, rows[row])) row = (row + 1) % rows.size();
    drawn.push_back(rows[row]);
  }
  return drawn;
}

bool drawWin(Show& show, const AwardOption& option) {
  bool& taken = show.taken(option.prize);
  const bool isWinner = RandomRange(show.game.random, 2) == 1 && !taken;
  taken = taken || isWinner || isActing(option);
  return isWinner;
}

void nominate(Show& show, const Film& film, std::size_t row) {
  WorldState& world = show.game.world;
  const AwardOption& option = options[row];
  world.awardId += 1;
  Award award{.id = world.awardId,
              .awardOptionId = static_cast<std::int64_t>(row),
              .filmId = film.filmId,
              .filmType = film.typeOfFilm,
              .filmTitle = film.title,
              .seasonNumber = film.typeOfFilm == filmType::series ? film.seasonNumber : 0,
              .nameOfAward = std::string(option.awardName),
              .awardShow = std::string(option.awardShow),
              .yearAwarded = world.yearNumber,
              .name = nomineeOf(world, film, option),
              .isWinner = drawWin(show, option) ? 1 : 0,
              .description = rowsOf(bank::awardDescriptions)[row]};
  for (std::size_t rival = 0; rival < rivals; ++rival) {
    award.otherNomineeNames.push_back(inventedName(show.game.random, world.isMale));
  }
  award.otherNomineeFilm = drawRivalTitles(show.game.random);
  world.saveAllMovieAwards.push_back(std::move(award));
}

// The size of the role does not matter, only its kind.
bool isForRole(const Film& film, const AwardOption& option) {
  return film.role.contains("Support") == (option.roleType == "Support");
}

void consider(Show& show, const Film& film, std::size_t row) {
  const AwardOption& option = options[row];
  show.game.world.awardId += 1;
  if (RandomRange(show.game.random, nominationRoll) >= film.imbdMetascore) return;
  if (isActing(option) && (!isForRole(film, option) || show.taken(option.prize))) return;
  nominate(show, film, row);
}

bool isFor(const WorldState& world, const AwardOption& option, std::int64_t typeOfFilm) {
  const std::int64_t other = world.isMale ? female : male;
  return option.typeOfFilm == typeOfFilm && option.gender != other;
}

bool isEligible(const WorldState& world, const Film& film, std::int64_t typeOfFilm) {
  return film.typeOfFilm == typeOfFilm && film.yearReleased == world.yearNumber - 1 &&
         film.imbdMetascore >= leastMetascore &&
         (typeOfFilm != filmType::series || std::ranges::contains(film.genres, "Drama"));
}

std::vector<Film> eligibleTitles(const WorldState& world, std::int64_t typeOfFilm) {
  std::vector<Film> titles;
  for (const Film& film : world.saveAllFilmList) {
    if (isEligible(world, film, typeOfFilm)) titles.push_back(film);
  }
  sortDescending(titles, &Film::imbdMetascore);
  return titles;
}

void holdShow(Game& game, std::int64_t typeOfFilm) {
  Show show{.game = game};
  for (const Film& film : eligibleTitles(game.world, typeOfFilm)) {
    for (std::size_t row = 0; row < options.size(); ++row) {
      if (isFor(game.world, options[row], typeOfFilm)) consider(show, film, row);
    }
  }
}

}  // namespace

std::span<const AwardOption> awardOptions() { return options; }

bool isActing(const AwardOption& option) {
  return option.prize == Prize::lead || option.prize == Prize::support;
}

void featureNominations(Game& game) {
  if (game.world.weekNumber == cademyWeek) holdShow(game, filmType::feature);
}

void seriesNominations(Game& game) {
  if (game.world.weekNumber == emmeWeek) holdShow(game, filmType::series);
}

bool isNominatedThisYear(const WorldState& world) {
  return std::ranges::contains(world.saveAllMovieAwards, world.yearNumber, &Award::yearAwarded);
}

std::vector<std::size_t> newNominations(const WorldState& world) {
  std::vector<std::size_t> indexes;
  for (std::size_t index = 0; index < world.saveAllMovieAwards.size(); ++index) {
    const Award& award = world.saveAllMovieAwards[index];
    const std::int64_t announced = award.filmType == filmType::series ? emmeWeek : cademyWeek;
    if (award.yearAwarded == world.yearNumber && world.weekNumber == announced + 1) indexes.push_back(index);
  }
  return indexes;
}

bool isRevealed(const WorldState& world, const Award& award) {
  return award.yearAwarded < world.yearNumber || std::ranges::contains(world.openedEnvelopes, award.id);
}

void openEnvelope(Game& game, std::int64_t id) { game.world.openedEnvelopes.push_back(id); }

}  // namespace tb
