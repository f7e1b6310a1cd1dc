#include "film/syndication_offers.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <optional>

#include "core/bands.h"
#include "core/debug_log.h"
#include "core/find.h"
#include "core/format.h"
#include "film/box_office.h"
#include "film/networks.h"

namespace tb {

namespace {

constexpr std::int64_t firstRunWeeks = 29;

// Range of the drawn threshold in points of popularity; only titles above it get a bid.
constexpr double minInterest = 10;
constexpr double maxInterest = 100;

// The term of a bid by popularity: `least` + RandomRange(`spread`) years.
struct TermBand {
  double from;
  double upTo;
  std::int64_t least;
  std::int64_t spread;
};
constexpr std::array<TermBand, 5> termBands = {{
    {.from = 26, .upTo = 50, .least = 1, .spread = 2},
    {.from = 51, .upTo = 65, .least = 1, .spread = 3},
    {.from = 66, .upTo = 80, .least = 2, .spread = 3},
    {.from = 81, .upTo = 95, .least = 3, .spread = 3},
    {.from = 96, .upTo = 300, .least = 3, .spread = 5},
}};
constexpr std::int64_t yearsOutsideBands = 1;  // below and between the bands

// Price cap. A value above it is replaced by a draw in whole millions.
constexpr double maxPrice = 1e9;  // dollars
constexpr double million = 1e6;
constexpr std::int64_t minMillions = 500;
constexpr std::int64_t millionsSpread = 701;

// Range of the factor for later bids, relative to the title's value.
constexpr double minHaggle = 0.75;
constexpr double maxHaggle = 1.25;

// --- Value of a title ---

// The sum of both scores, up to 20.
double scoresOf(const Film& film) { return film.imbdRating + static_cast<double>(film.imbdMetascore) / 10; }

// The last episode's audience as a fraction of the premiere's; nothing for a series without viewing figures.
std::optional<double> retentionOf(const WorldState& world, const Film& film) {
  const auto season = find(world.saveAllRatings, &Ratings::filmId, film.filmId);
  if (!season) return std::nullopt;
  const std::vector<double>& views = world.saveAllRatings[*season].premiereViews;
  if (views.empty() || views.front() <= 0) return std::nullopt;
  return views.back() / views.front();
}

double valueOfSeries(const WorldState& world, const Film& film) {
  const auto retention = retentionOf(world, film);
  if (!retention) return 0;
  return (*retention + scoresOf(film) / 200) * film.budget;
}

double valueOfMovie(const WorldState& world, const Film& film) {
  const bool hasClosed = film.boxOfficeGross > 0;
  const double gross = hasClosed ? film.boxOfficeGross : grossOf(world, film.filmId).value_or(0);
  const double profit = gross / film.budget - 1;
  return (std::max(profit * 0.5, 0.0) + scoresOf(film) / 20) * (film.budget * 0.25);
}

// In dollars; 0 without a budget.
double valueOf(const WorldState& world, const Film& film) {
  if (film.budget <= 0) return 0;
  const double worth =
      film.typeOfFilm == filmType::series ? valueOfSeries(world, film) : valueOfMovie(world, film);
  return worth * film.currentPopularity / 100;
}

// --- A bid ---

struct Bid {
  std::size_t network;
  std::int64_t years;
  std::int64_t price;
};

std::int64_t drawYears(Game& game, double popularity) {
  const TermBand* const band = bandOf(termBands, popularity);
  return band == nullptr ? yearsOutsideBands : band->least + RandomRange(game.random, band->spread);
}

std::int64_t priceOf(Game& game, double worth) {
  if (worth > maxPrice) {
    worth = static_cast<double>(minMillions + RandomRange(game.random, millionsSpread)) * million;
  }
  debugLog(tb::format("Syndication offer == {:.2f}", worth));
  return static_cast<std::int64_t>(worth);
}

// Nothing when the title's value is 0, which is never the case for a series. The first bid is exactly the
// value.
std::optional<Bid> drawBid(Game& game, const Film& film, bool isFirst) {
  const auto network = static_cast<std::size_t>(RandomRange(game.random, std::ssize(networks)));
  const std::int64_t years = drawYears(game, film.currentPopularity);
  const double worth = valueOf(game.world, film);
  if (!(worth > 0)) return std::nullopt;
  const double haggle = isFirst ? 1 : RandomUnit(game.random, minHaggle, maxHaggle);
  return Bid{.network = network, .years = years, .price = priceOf(game, worth * haggle)};
}

// --- The records ---

void enter(const Bid& bid, Syndication& record) {
  record.networkNames.emplace_back(networks[bid.network]);
  record.networkOffers.push_back(bid.price);
  record.networkYears.push_back(bid.years);
  record.networkImages.emplace_back(networkLogos[bid.network]);
}

Syndication newRecord(const WorldState& world, const Film& film) {
  return {.filmId = film.filmId,
          .filmName = film.title,
          .filmType = film.typeOfFilm,
          .filmReleased = film.weekReleased,
          .weekOfFirstOffer = world.weekNumberForTracking,
          .payment = film.payment,
          .residualRate = film.residualRate,
          .royaltyRate = film.royaltyRate,
          .sourceId = film.sourceId};
}

bool isRunOver(const WorldState& world, const Film& film) {
  const bool isSyndicated = film.typeOfFilm == filmType::feature || film.typeOfFilm == filmType::series;
  return isSyndicated && world.weekNumberForTracking - film.weekReleased >= firstRunWeeks;
}

void recordBid(Game& game, const Film& film) {
  List<Syndication>& records = game.world.saveAllSyndication;
  const std::size_t at = find(records, &Syndication::filmId, film.filmId).value_or(records.size());
  const bool isFirst = at == records.size();
  if (!isFirst && records[at].didAcceptOffer) return;
  const auto bid = drawBid(game, film, isFirst);
  if (!bid) return;
  if (isFirst) {
    records.push_back(newRecord(game.world, film));
  } else if (std::ranges::contains(records[at].networkNames, networks[bid->network])) {
    return;
  }
  enter(*bid, records.edit(at));
}

}  // namespace

void drawSyndicationBids(Game& game) {
  for (const Film& film : game.world.saveAllFilmList) {
    if (!isRunOver(game.world, film)) continue;
    if (RandomUnit(game.random, minInterest, maxInterest) >= film.currentPopularity) continue;
    recordBid(game, film);
  }
}

}  // namespace tb
