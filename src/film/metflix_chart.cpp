#include "film/metflix_chart.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "banks/names.h"
#include "core/descending.h"
#include "core/find.h"
#include "core/log.h"
#include "film/catalogue.h"

namespace tb {

namespace {

constexpr double maxWeeklyChange = 5;  // points of popularity
constexpr double maxInvented = 125;    // above it, the popularity of an invented title falls
constexpr double highestEntry = 100;   // popularity that is enough for a chart without invented titles
constexpr std::int64_t weeksBetweenAdditions = 7;
constexpr std::size_t countedPlaces = 20;  // below them, a title's weeks on the chart start again
constexpr double viewsOfTheTop = 60'000'000;

struct ChartKind {
  List<TopTen> WorldState::* entries;
  std::int64_t type;                // tb::filmType of its titles
  List<TopTen> WorldState::* left;  // where the player's titles go that leave; null for nowhere
};

constexpr ChartKind filmChart = {.entries = &WorldState::saveAllTopTenList,
                                 .type = filmType::feature,
                                 .left = &WorldState::saveAllSavedTopTenList};
constexpr ChartKind seriesChart = {
    .entries = &WorldState::saveAllTopTenSeriesList, .type = filmType::series, .left = nullptr};

// A week's work on one chart.
struct ChartWeek {
  Game& game;
  const ChartKind& kind;
  std::vector<TopTen> entries;

  void sort() { sortDescending(entries, &TopTen::currentPopularity); }

  void remove(std::size_t index) {
    TopTen entry = std::move(entries[index]);
    entries.erase(entries.begin() + static_cast<std::ptrdiff_t>(index));
    if (kind.left != nullptr && !isInvented(entry)) (game.world.*kind.left).push_back(std::move(entry));
  }
};

void copyPopularity(const Film& film, TopTen& entry) {
  entry.currentPopularity = film.currentPopularity;
  entry.lastWeekPopularity = film.lastWeekPopularity;
}

void drift(Game& game, TopTen& entry) {
  entry.lastWeekPopularity = entry.currentPopularity;
  entry.currentPopularity += RandomUnit(game.random, -maxWeeklyChange, maxWeeklyChange);
  if (entry.currentPopularity > maxInvented) {
    entry.currentPopularity += RandomUnit(game.random, -maxWeeklyChange, 0);
  }
}

void updatePopularity(ChartWeek& week) {
  const List<Film>& films = week.game.world.saveAllFilmList;
  for (TopTen& entry : week.entries) {
    if (isInvented(entry)) {
      drift(week.game, entry);
    } else if (const auto film = find(films, &Film::filmId, entry.filmId)) {
      copyPopularity(films[*film], entry);
    }
  }
}

double lowestInvented(const ChartWeek& week) {
  double lowest = highestEntry;
  for (const TopTen& entry : week.entries) {
    if (isInvented(entry)) lowest = std::min(lowest, entry.currentPopularity);
  }
  return lowest;
}

TopTen entryOf(const WorldState& world, const Film& film) {
  return {.filmId = film.filmId,
          .title = film.title,
          .director = film.directorName,
          .duration = film.lengthMinutes,
          .yearDebut = world.yearNumber,
          .weekNumber = world.weekNumber,
          .currentPopularity = film.currentPopularity,
          .lastWeekPopularity = film.lastWeekPopularity,
          .imageString = film.imageString,
          .description = film.movieDescription};
}

// Enters a title, or updates its entry. With ten entries, the lowest of the others leaves.
void enter(ChartWeek& week, const Film& film) {
  const auto entry = std::ranges::find(week.entries, film.filmId, &TopTen::filmId);
  if (entry != week.entries.end()) return copyPopularity(film, *entry);
  week.sort();
  if (!week.entries.empty() && film.currentPopularity < week.entries.back().currentPopularity) return;
  week.entries.push_back(entryOf(week.game.world, film));
  if (week.entries.size() >= chartPlaces) week.remove(week.entries.size() - 2);  // the lowest before
}

// Titles on the chart are not added again.
const CatalogueTitle& drawTitle(Game& game, const std::vector<TopTen>& entries) {
  const auto titles = rateMovieCatalogue();
  auto row = static_cast<std::size_t>(RandomRange(game.random, std::ssize(titles)));
  for (std::size_t tried = 0; tried < titles.size(); ++tried) {
    if (!std::ranges::contains(entries, titles[row].title, &TopTen::title)) break;
    row = (row + 1) % titles.size();
  }
  return titles[row];
}

TopTen drawInvented(Game& game, const std::vector<TopTen>& entries) {
  const std::int64_t id = TopTen::firstInventedId + RandomRange(game.random, 245'000'001);
  TopTen entry{.filmId = id, .totalViews = id, .yearDebut = game.world.yearNumber};
  entry.weekNumber = game.world.weekNumber;
  entry.totalWeeklyViews = 20'000'000 + RandomRange(game.random, 41'000'000);
  entry.currentPopularity = RandomUnit(game.random, 85, 99);
  entry.lastWeekPopularity = RandomUnit(game.random, 85, 99);
  entry.weeksOnChart = RandomRange(game.random, 11);
  entry.duration = 59 + RandomRange(game.random, 131);
  const CatalogueTitle& title = drawTitle(game, entries);
  entry.title = title.title;
  entry.imageString = title.imageString;
  entry.description = title.description;
  entry.director = inventedName(game.random);
  return entry;
}

void place(TopTen& entry, std::size_t index) {
  const auto rank = static_cast<std::int64_t>(index) + 1;
  entry.rankLastWeek = entry.rankThisWeek;
  entry.rankThisWeek = rank;
  if (index == 0) entry.weeksAtOne += 1;
  entry.peakPosition = std::min(entry.peakPosition, rank);
  if (index >= countedPlaces) {
    entry.longestWeekOnChart = std::max(entry.longestWeekOnChart, entry.weeksOnChart);
    entry.weeksOnChart = 0;
  } else {
    entry.weeksOnChart += 1;
  }
}

void tellEntry(WorldState& world, const TopTen& entry) {
  if (isInvented(entry) || entry.weeksOnChart != 0) return;
  feedLine(world, {NewsKind::chartEntry, entry.filmId}, entry.title + " made it onto the Metflix Top 10!");
}

void rank(ChartWeek& week) {
  week.sort();
  for (std::size_t index = 0; index < week.entries.size(); ++index) {
    tellEntry(week.game.world, week.entries[index]);
    place(week.entries[index], index);
  }
  (week.game.world.*week.kind.entries).assign(week.entries);
}

ChartWeek chartWeek(Game& game, const ChartKind& kind) {
  const List<TopTen>& entries = game.world.*kind.entries;
  return {.game = game, .kind = kind, .entries = {entries.begin(), entries.end()}};
}

void advance(Game& game, const ChartKind& kind) {
  ChartWeek week = chartWeek(game, kind);
  updatePopularity(week);
  const double limit = lowestInvented(week);
  if (week.entries.size() > chartPlaces) {
    week.sort();
    week.remove(week.entries.size() - 1);
  }
  for (const Film& film : game.world.saveAllFilmList) {
    if (film.typeOfFilm == kind.type && film.currentPopularity > limit) enter(week, film);
  }
  if (game.world.weekNumber % weeksBetweenAdditions == 0 && week.entries.size() <= chartPlaces) {
    week.entries.push_back(drawInvented(game, week.entries));
  }
  rank(week);
}

void fillChart(Game& game, const ChartKind& kind) {
  ChartWeek week = {.game = game, .kind = kind, .entries = {}};
  while (week.entries.size() < chartPlaces) week.entries.push_back(drawInvented(game, week.entries));
  rank(week);
}

}  // namespace

void advanceFilmChart(Game& game) { advance(game, filmChart); }
void advanceSeriesChart(Game& game) { advance(game, seriesChart); }

void openCharts(Game& game) {
  if (game.world.saveBestsellerRankings != 0) return;
  fillChart(game, filmChart);
  fillChart(game, seriesChart);
  game.world.saveBestsellerRankings = 1;
}

bool isInvented(const TopTen& entry) { return entry.filmId >= TopTen::firstInventedId; }

std::int64_t viewsAt(double popularity) {
  return static_cast<std::int64_t>(std::max(popularity, 0.0) / 100 * viewsOfTheTop);
}

std::int64_t weeklyViews(const TopTen& entry) {
  return isInvented(entry) ? entry.totalWeeklyViews : viewsAt(entry.currentPopularity);
}

}  // namespace tb
