#include "screens/work/release_figures.h"

#include <algorithm>
#include <numeric>

#include "core/find.h"
#include "core/format.h"
#include "core/number_style.h"
#include "film/box_office_tables.h"
#include "screens/film/box_office_parts.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

bool isSeries(const Audition& project) { return project.typeOfFilm == filmType::series; }

// A series earns ad revenue per viewer.
void addSeason(ReleaseFigures& figures, const Ratings& season) {
  figures.weeks = season.premiereViews;
  figures.gross = std::reduce(figures.weeks.begin(), figures.weeks.end()) * season.adRates;
}

std::string amountText(const Game& game, const Audition& project, double amount) {
  return isSeries(project) ? shortCount(static_cast<std::int64_t>(amount)) : bigMoney(game.locale, amount);
}

}  // namespace

ReleaseFigures figuresOf(const WorldState& world, const Audition& project) {
  ReleaseFigures figures{.budget = project.budget};
  if (isSeries(project)) {
    const auto season = find(world.saveAllRatings, &Ratings::filmId, project.filmId);
    if (season) addSeason(figures, world.saveAllRatings[*season]);
  } else {
    figures.weeks = weeklyTakings(world, project.filmId);
    figures.gross = std::reduce(figures.weeks.begin(), figures.weeks.end());
  }
  return figures;
}

Tiles figureTiles(const Game& game, const Audition& project, const ReleaseFigures& figures) {
  const double share = returnOf(figures.gross, figures.budget);
  const double first = figures.weeks.empty() ? 0 : figures.weeks.front();
  return {{
      {.label = isSeries(project) ? "TOTAL GROSS" : "BOX OFFICE GROSS",
       .value = bigMoney(game.locale, figures.gross)},
      {.label = isSeries(project) ? "PREMIERE" : "OPENING WEEKEND",
       .value = amountText(game, project, first),
       .detail = isSeries(project) ? "viewers" : ""},
      {.label = "BUDGET", .value = bigMoney(game.locale, figures.budget)},
      {.label = "RETURN",
       .value = tb::format("{:.0f}%", share),
       .detail = "of the budget",
       .tone = share >= 100 ? Tone::good : Tone::warning},
  }};
}

Chart figureChart(const Game& game, const Audition& project, const ReleaseFigures& figures) {
  if (!isSeries(project)) return takingsChart(game, "Gross by week", figures.weeks);
  return barChart(
      "Viewers by episode", figures.weeks,
      [](std::size_t episode) { return tb::format("Episode {}", episode + 1); },
      [](double viewers) { return shortCount(static_cast<std::int64_t>(viewers)); });
}

}  // namespace tb
