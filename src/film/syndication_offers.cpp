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

constexpr std::int64_t weeksOfFirstRun = 29;

// The interest of a week, in points of popularity; a title has to be above it.
constexpr double leastInterest = 10;
constexpr double mostInterest = 100;

// How long a network wants a title, by its popularity: `least` years and a draw out of `spread` on top.
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
constexpr std::int64_t yearsOutsideBands = 1;  // of the little known, and between the bands

// No network pays more than the highest price; what a title is worth beyond it is told in whole millions.
constexpr double highestPrice = 1e9;  // dollars
constexpr double million = 1e6;
constexpr std::int64_t leastMillions = 500;
constexpr std::int64_t spreadOfMillions = 701;

// A bid on a title with other bids is this far from what the title is worth.
constexpr double lowestHaggle = 0.75;
constexpr double highestHaggle = 1.25;

// --- What a title is worth ---

// Both scores, up to 20.
double scoresOf(const Film& film) { return film.imbdRating + static_cast<double>(film.imbdMetascore) / 10; }

// The part of the first night's audience that was there at the end; nothing for a series that nobody counted.
std::optional<double> retentionOf(const WorldState& world, const Film& film) {
  const auto season = find(world.saveAllRatings, &Ratings::filmId, film.filmId);
  if (!season) return std::nullopt;
  const std::vector<double>& views = world.saveAllRatings[*season].premiereViews;
  if (views.empty() || views.front() <= 0) return std::nullopt;
  return views.back() / views.front();
}

double worthOfSeries(const WorldState& world, const Film& film) {
  const auto retention = retentionOf(world, film);
  if (!retention) return 0;
  return (*retention + scoresOf(film) / 200) * film.budget;
}

double worthOfMovie(const WorldState& world, const Film& film) {
  const bool has_closed = film.boxOfficeGross > 0;
  const double gross = has_closed ? film.boxOfficeGross : grossOf(world, film.filmId).value_or(0);
  const double profit = gross / film.budget - 1;
  return (std::max(profit * 0.5, 0.0) + scoresOf(film) / 20) * (film.budget * 0.25);
}

// In dollars, 0 for what cost nothing.
double worthOf(const WorldState& world, const Film& film) {
  if (film.budget <= 0) return 0;
  const double worth =
      film.typeOfFilm == filmType::series ? worthOfSeries(world, film) : worthOfMovie(world, film);
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
  if (worth > highestPrice) {
    worth = static_cast<double>(leastMillions + RandomRange(game.random, spreadOfMillions)) * million;
  }
  debugLog(tb::format("Syndication offer == {:.2f}", worth));
  return static_cast<std::int64_t>(worth);
}

// Nothing when the title is worth nothing, which no series comes to. The first network to come pays what the
// title is worth.
std::optional<Bid> drawBid(Game& game, const Film& film, bool isFirst) {
  const auto network = static_cast<std::size_t>(RandomRange(game.random, std::ssize(networks)));
  const std::int64_t years = drawYears(game, film.currentPopularity);
  const double worth = worthOf(game.world, film);
  if (!(worth > 0)) return std::nullopt;
  const double haggle = isFirst ? 1 : RandomUnit(game.random, lowestHaggle, highestHaggle);
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

bool hasHadItsRun(const WorldState& world, const Film& film) {
  const bool is_shown_again = film.typeOfFilm == filmType::feature || film.typeOfFilm == filmType::series;
  return is_shown_again && world.weekNumberForTracking - film.weekReleased >= weeksOfFirstRun;
}

void takeBid(Game& game, const Film& film) {
  List<Syndication>& records = game.world.saveAllSyndication;
  const std::size_t at = find(records, &Syndication::filmId, film.filmId).value_or(records.size());
  const bool is_first = at == records.size();
  if (!is_first && records[at].didAcceptOffer) return;
  const auto bid = drawBid(game, film, is_first);
  if (!bid) return;
  if (is_first) {
    records.push_back(newRecord(game.world, film));
  } else if (std::ranges::contains(records[at].networkNames, networks[bid->network])) {
    return;
  }
  enter(*bid, records.edit(at));
}

}  // namespace

void takeSyndicationBids(Game& game) {
  for (const Film& film : game.world.saveAllFilmList) {
    if (!hasHadItsRun(game.world, film)) continue;
    if (RandomUnit(game.random, leastInterest, mostInterest) >= film.currentPopularity) continue;
    takeBid(game, film);
  }
}

}  // namespace tb
