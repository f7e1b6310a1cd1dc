#include "screens/work/release_figures.h"

#include <algorithm>
#include <format>
#include <numeric>

#include "core/number_style.h"
#include "screens/parts.h"

namespace tb {

using namespace view;

namespace {

bool isSeries(const Audition& project) { return project.typeOfFilm == filmType::series; }

void addMarket(ReleaseFigures& figures, const BoxOffice& market) {
  figures.gross += market.totalGross;
  figures.weeks.resize(std::max(figures.weeks.size(), market.boxOfficeWeeklyEarnings.size() + 1));
  figures.weeks[0] += market.openingWeekend;
  for (std::size_t week = 0; week < market.boxOfficeWeeklyEarnings.size(); ++week) {
    figures.weeks[week + 1] += market.boxOfficeWeeklyEarnings[week];
  }
}

// A series earns by its advertisements: so much for every viewer.
void addSeason(ReleaseFigures& figures, const Ratings& season) {
  figures.weeks = season.premiereViews;
  figures.gross = std::reduce(figures.weeks.begin(), figures.weeks.end()) * season.adRates;
}

std::string amountText(const Game& game, const Audition& project, double amount) {
  return isSeries(project) ? shortCount(static_cast<std::int64_t>(amount)) : shortMoney(game.locale, amount);
}

std::string placeName(const Audition& project, std::size_t place) {
  if (isSeries(project)) return std::format("Episode {}", place + 1);
  return place == 0 ? "Opening" : std::format("Week {}", place);
}

}  // namespace

ReleaseFigures figuresOf(const WorldState& world, const Audition& project) {
  ReleaseFigures figures{.budget = project.budget};
  for (const BoxOffice& market : world.saveAllBoxOfficeList) {
    if (market.filmId == project.filmId) addMarket(figures, market);
  }
  const auto season = std::ranges::find(world.saveAllRatings, project.filmId, &Ratings::filmId);
  if (season != world.saveAllRatings.end()) addSeason(figures, *season);
  return figures;
}

Tiles figureTiles(const Game& game, const Audition& project, const ReleaseFigures& figures) {
  const double share = figures.budget > 0 ? figures.gross / figures.budget * 100 : 0;
  const double first = figures.weeks.empty() ? 0 : figures.weeks.front();
  return {{
      {.label = isSeries(project) ? "TOTAL GROSS" : "BOX OFFICE GROSS",
       .value = shortMoney(game.locale, figures.gross)},
      {.label = isSeries(project) ? "PREMIERE" : "OPENING WEEKEND",
       .value = amountText(game, project, first),
       .detail = isSeries(project) ? "viewers" : ""},
      {.label = "BUDGET", .value = shortMoney(game.locale, figures.budget)},
      {.label = "RETURN",
       .value = std::format("{:.0f}%", share),
       .detail = "of the budget",
       .tone = share >= 100 ? Tone::good : Tone::warning},
  }};
}

Chart figureChart(const Game& game, const Audition& project, const ReleaseFigures& figures) {
  Chart chart{.kind = Chart::Kind::bar,
              .title = isSeries(project) ? "Viewers by episode" : "Takings by week"};
  if (figures.weeks.empty()) {
    chart.summary = "There are no figures.";
    return chart;
  }
  for (std::size_t place = 0; place < figures.weeks.size(); ++place) {
    chart.points.push_back({.label = placeName(project, place),
                            .value = figures.weeks[place],
                            .text = amountText(game, project, figures.weeks[place])});
  }
  const double highest = std::ranges::max(figures.weeks);
  chart.scale = roundScale(0, highest, [&](double mark) { return amountText(game, project, mark); });
  chart.summary = std::format("From {} at first to {} at last; highest {}.", chart.points.front().text,
                              chart.points.back().text, amountText(game, project, highest));
  return chart;
}

}  // namespace tb
