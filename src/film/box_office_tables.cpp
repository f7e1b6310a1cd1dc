#include "film/box_office_tables.h"

#include <algorithm>
#include <map>

#include "core/descending.h"
#include "film/catalogue.h"
#include "film/markets.h"

namespace tb {

namespace {

constexpr double blockbusterOpening = 50'000'000;  // dollars, in one market
constexpr std::int64_t weeksOnShow = 8;            // including the opening

// Totals of a film's records.
struct Takings {
  double opening = 0;
  double latest = 0;
  double total = 0;
  double domestic = 0;
  std::int64_t year = 0;  // of the opening
  bool isBlockbuster = false;
};

std::map<std::int64_t, Takings> takingsByFilm(const WorldState& world) {
  std::map<std::int64_t, Takings> films;
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    Takings& film = films[market.filmId];
    const auto& weeks = market.boxOfficeWeeklyEarnings;
    film.opening += market.openingWeekend;
    film.latest += weeks.empty() ? market.openingWeekend : weeks.back();
    film.total += market.totalGross;
    film.year = market.year;
    if (market.countryId == domesticMarket) film.domestic += market.totalGross;
    film.isBlockbuster = film.isBlockbuster || market.openingWeekend > blockbusterOpening;
  }
  return films;
}

BoxOfficeWeekends rowOf(const Film& film, const Takings& takings) {
  return {.filmId = film.filmId,
          .title = film.title,
          .yearReleased = takings.year,
          .weekendEarnings = takings.opening,
          .totalGross = takings.total,
          .domesticGross = takings.domestic,
          .imageString = film.imageString,
          .budget = film.budget};
}

BoxOfficeWeekends rowOf(const MovieRecord& record) {
  return {.title = record.title,
          .yearReleased = record.year,
          .totalGross = record.worldwide,
          .domesticGross = record.domestic};
}

void addToItsTitle(std::vector<BoxOfficeWeekends>& rows, const BoxOfficeWeekends& film) {
  const auto same = std::ranges::find(rows, film.title, &BoxOfficeWeekends::title);
  if (same == rows.end()) return rows.push_back(film);
  same->weekendEarnings += film.weekendEarnings;
  same->totalGross += film.totalGross;
  same->domesticGross += film.domesticGross;
  same->budget += film.budget;
}

void sortByGross(std::vector<BoxOfficeWeekends>& rows) {
  sortDescending(rows, &BoxOfficeWeekends::totalGross);
}

}  // namespace

std::vector<InTheaters> inTheaters(const WorldState& world) {
  const auto takings = takingsByFilm(world);
  std::vector<InTheaters> rows;
  for (const Film& film : world.saveAllFilmList) {
    const std::int64_t weeks = world.weekNumberForTracking - film.weekReleased;
    const auto found = takings.find(film.filmId);
    if (found == takings.end() || weeks >= weeksOnShow) continue;
    rows.push_back({.filmId = film.filmId,
                    .title = film.title,
                    .weekendEarnings = found->second.latest,
                    .totalGross = found->second.total,
                    .imageString = film.imageString,
                    .description = film.movieDescription});
  }
  sortDescending(rows, &InTheaters::weekendEarnings);
  return rows;
}

std::vector<BoxOfficeWeekends> filmsByGross(const WorldState& world) {
  const auto takings = takingsByFilm(world);
  std::vector<BoxOfficeWeekends> rows;
  for (const Film& film : world.saveAllFilmList) {
    const auto found = takings.find(film.filmId);
    if (found != takings.end()) rows.push_back(rowOf(film, found->second));
  }
  sortByGross(rows);
  return rows;
}

std::vector<BoxOfficeWeekends> highestGrossing(const WorldState& world) {
  const auto takings = takingsByFilm(world);
  std::vector<BoxOfficeWeekends> rows;
  for (const Film& film : world.saveAllFilmList) {
    const auto found = takings.find(film.filmId);
    if (found == takings.end() || !found->second.isBlockbuster) continue;
    addToItsTitle(rows, rowOf(film, found->second));
  }
  for (const MovieRecord& record : movieRecords()) rows.push_back(rowOf(record));
  sortByGross(rows);
  rows.resize(std::min(rows.size(), allTimeRanks));
  return rows;
}

std::vector<double> weeklyTakings(const WorldState& world, std::int64_t filmId) {
  std::vector<double> weeks;
  const auto add = [&](std::size_t week, double takings) {
    if (week >= weeks.size()) weeks.resize(week + 1);
    weeks[week] += takings;
  };
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    if (market.filmId != filmId) continue;
    add(0, market.openingWeekend);
    for (std::size_t week = 0; week < market.boxOfficeWeeklyEarnings.size(); ++week) {
      add(week + 1, market.boxOfficeWeeklyEarnings[week]);
    }
  }
  return weeks;
}

double returnOf(double gross, double budget) { return budget > 0 ? gross / budget * 100 : 0; }

}  // namespace tb
