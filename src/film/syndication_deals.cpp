#include "film/syndication_deals.h"

#include <algorithm>

#include "banks/draw.h"
#include "banks/syndication_banks.h"
#include "core/ended_week.h"
#include "core/find.h"
#include "core/format.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/film_record.h"
#include "film/syndication_payouts.h"

namespace tb {

namespace {

constexpr std::int64_t weeksOfBidding =
    4;  // since the first bid ever made; a title that was sold waits no more
constexpr std::size_t fewestBids = 2;
constexpr std::int64_t weeksOfAYear = 52;
constexpr std::int64_t weeksBetweenResiduals = 12;
constexpr std::int64_t noNetwork = -1;  // Syndication::networkIndexWon

// What the news does to a title of the last years: an older one comes back stronger, a hit is a hit again.
constexpr std::int64_t yearsInMemory = 4;
constexpr double hit = 95;  // points of popularity
constexpr double allTheTalk = 100;

constexpr std::int64_t audienceOfReruns = 100'000;  // hours watched; with fewer nobody counts

// --- Striking a deal ---

void announce(Game& game, const Syndication& title, const NetworkDeal& deal) {
  const std::string amount = shortMoney(game.locale, static_cast<double>(deal.price));
  const std::string years = tb::format("{} year{}", deal.years, deal.years == 1 ? "" : "s");
  logLine(game.world, {NewsKind::syndication, title.filmId},
          fill(tellRow(game, bank::syndicationDealBank),
               {{"title", title.filmName}, {"amount", amount}, {"network", deal.network}, {"years", years}}));
}

void bringBackToMind(Game& game, std::size_t filmAt) {
  const std::int64_t years = game.world.yearNumber - game.world.saveAllFilmList[filmAt].yearReleased;
  if (years > yearsInMemory) return;
  Film& film = game.world.saveAllFilmList.edit(filmAt);
  film.lastWeekPopularity = film.currentPopularity;
  film.currentPopularity =
      film.currentPopularity < hit ? film.currentPopularity + static_cast<double>(years) : allTheTalk;
}

// Any of the bidders wins, the lowest as soon as the highest: what they talk about is not only money.
void sign(Game& game, Syndication& title) {
  const std::int64_t won = RandomRange(game.random, std::ssize(title.networkOffers));
  const auto bid = static_cast<std::size_t>(won);
  const NetworkDeal deal = {.price = title.networkOffers[bid],
                            .years = title.networkYears[bid],
                            .network = title.networkNames[bid]};
  title.networkIndexWon = won;
  title.weekStarted = game.world.weekNumberForTracking;
  title.weeksRemaining = deal.years * weeksOfAYear;
  title.didAcceptOffer = true;
  title.totalEarnings += deal.price;
  announce(game, title, deal);

  const std::size_t film = filmIndex(game.world, title.filmId);
  if (film == game.world.saveAllFilmList.size()) return;
  bringBackToMind(game, film);
  paySyndicationShares(game, game.world.saveAllFilmList[film], deal);
}

bool isReadyToSign(const WorldState& world, const Syndication& title) {
  return !title.didAcceptOffer && world.weekNumberForTracking - title.weekOfFirstOffer >= weeksOfBidding &&
         title.networkOffers.size() >= fewestBids;
}

// --- A deal in force ---

void end(Syndication& title) {
  const auto won = static_cast<std::size_t>(title.networkIndexWon);
  title.networkNameSigned.push_back(title.networkNames[won]);
  title.networkOfferSigned.push_back(title.networkOffers[won]);
  title.networkYearSigned.push_back(title.networkYears[won]);
  title.didAcceptOffer = false;
  title.weekStarted = 0;
  title.networkIndexWon = noNetwork;
  title.networkNames.clear();
  title.networkOffers.clear();
  title.networkYears.clear();
  title.networkImages.clear();
}

// The hours that the reruns of a week are watched, by those of the last count: a big return, and then less
// every week, as the deal runs out.
double hoursOfReruns(Game& game, const Syndication& title, double lastHours) {
  const std::int64_t weeks = game.world.weekNumberForTracking - title.weekStarted;
  if (weeks == 0) return lastHours * RandomUnit(game.random, 1.5, 2.0);
  const double left =
      static_cast<double>(title.weeksRemaining) / static_cast<double>(weeks + title.weeksRemaining);
  const double hours = (left - 0.3) * lastHours;
  return hours > static_cast<double>(audienceOfReruns) ? hours : 0;
}

void showReruns(Game& game, const Syndication& title) {
  WorldState& world = game.world;
  const auto season = find(world.saveAllRatings, &Ratings::filmId, title.filmId);
  if (!season) return;
  const std::vector<std::int64_t>& watched = world.saveAllRatings[*season].hoursWatched;
  if (watched.empty() || watched.back() < audienceOfReruns) return;
  const double hours = hoursOfReruns(game, title, static_cast<double>(watched.back()));
  if (hours <= 0) return;
  Ratings& counted = world.saveAllRatings.edit(*season);
  counted.hoursWatched.push_back(static_cast<std::int64_t>(hours));
  counted.weeksTracked.push_back(endedTrackingWeek(world));
}

void runWeek(Game& game, std::size_t index) {
  List<Syndication>& titles = game.world.saveAllSyndication;
  const std::int64_t weeks_left = titles[index].weeksRemaining;
  if (weeks_left < 1) return end(titles.edit(index));
  if (weeks_left % weeksBetweenResiduals == 0) paySyndicationResidual(game, titles[index]);
  showReruns(game, titles[index]);
  titles.set(index, &Syndication::weeksRemaining, weeks_left - 1);
}

}  // namespace

void advanceSyndicationDeals(Game& game) {
  List<Syndication>& titles = game.world.saveAllSyndication;
  for (std::size_t index = 0; index < titles.size(); ++index) {
    if (isReadyToSign(game.world, titles[index])) sign(game, titles.edit(index));
    if (titles[index].didAcceptOffer) runWeek(game, index);
  }
}

}  // namespace tb
