#include "film/syndication_deals.h"

#include <algorithm>

#include "banks/draw.h"
#include "banks/syndication_banks.h"
#include "core/calendar.h"
#include "core/ended_week.h"
#include "core/find.h"
#include "core/format.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/film_record.h"
#include "film/syndication_payouts.h"

namespace tb {

namespace {

constexpr std::int64_t biddingWeeks = 4;  // since the first bid ever; does not restart after a deal
constexpr std::size_t minBids = 2;
constexpr std::int64_t weeksBetweenResiduals = 12;
constexpr std::int64_t noNetwork = -1;  // Syndication::networkIndexWon

// The popularity boost of a deal: higher for an older title, and for a hit.
constexpr std::int64_t popularityYears = 4;
constexpr double hit = 95;  // points of popularity
constexpr double allTheTalk = 100;

constexpr std::int64_t minRerunHours = 100'000;  // hours watched; fewer are not recorded

// --- Closing a deal ---

void announce(Game& game, const Syndication& title, const NetworkDeal& deal) {
  const std::string amount = shortMoney(game.locale, static_cast<double>(deal.price));
  const std::string years = counted(deal.years, "year");
  logLine(game.world, {NewsKind::syndication, title.filmId},
          fill(drawFreshRow(game, bank::syndicationDealBank),
               {{"title", title.filmName}, {"amount", amount}, {"network", deal.network}, {"years", years}}));
}

void boostPopularity(Game& game, std::size_t filmAt) {
  const std::int64_t years = game.world.yearNumber - game.world.saveAllFilmList[filmAt].yearReleased;
  if (years > popularityYears) return;
  Film& film = game.world.saveAllFilmList.edit(filmAt);
  film.lastWeekPopularity = film.currentPopularity;
  film.currentPopularity =
      film.currentPopularity < hit ? film.currentPopularity + static_cast<double>(years) : allTheTalk;
}

// Draws the winner uniformly, regardless of price.
void sign(Game& game, Syndication& title) {
  const std::int64_t won = RandomRange(game.random, std::ssize(title.networkOffers));
  const auto bid = static_cast<std::size_t>(won);
  const NetworkDeal deal = {.price = title.networkOffers[bid],
                            .years = title.networkYears[bid],
                            .network = title.networkNames[bid]};
  title.networkIndexWon = won;
  title.weekStarted = game.world.weekNumberForTracking;
  title.weeksRemaining = deal.years * weeksPerYear;
  title.didAcceptOffer = true;
  title.totalEarnings += deal.price;
  announce(game, title, deal);

  const auto film = find(game.world.saveAllFilmList, &Film::filmId, title.filmId);
  if (!film) return;
  boostPopularity(game, *film);
  paySyndicationShares(game, game.world.saveAllFilmList[*film], deal);
}

bool isReadyToSign(const WorldState& world, const Syndication& title) {
  return !title.didAcceptOffer && world.weekNumberForTracking - title.weekOfFirstOffer >= biddingWeeks &&
         title.networkOffers.size() >= minBids;
}

// --- An active deal ---

void end(Syndication& title) {
  const auto won = static_cast<std::size_t>(title.networkIndexWon);
  if (won < title.networkNames.size()) {
    title.networkNameSigned.push_back(title.networkNames[won]);
    title.networkOfferSigned.push_back(title.networkOffers[won]);
    title.networkYearSigned.push_back(title.networkYears[won]);
  }
  title.didAcceptOffer = false;
  title.weekStarted = 0;
  title.networkIndexWon = noNetwork;
  title.networkNames.clear();
  title.networkOffers.clear();
  title.networkYears.clear();
  title.networkImages.clear();
}

// The rerun hours of a week from the last recorded hours: a large increase at first, then less every week.
double rerunHours(Game& game, const Syndication& title, double lastHours) {
  const std::int64_t weeks = game.world.weekNumberForTracking - title.weekStarted;
  if (weeks == 0) return lastHours * RandomUnit(game.random, 1.5, 2.0);
  const double left =
      static_cast<double>(title.weeksRemaining) / static_cast<double>(weeks + title.weeksRemaining);
  const double hours = (left - 0.3) * lastHours;
  return hours > static_cast<double>(minRerunHours) ? hours : 0;
}

void showReruns(Game& game, const Syndication& title) {
  WorldState& world = game.world;
  const auto season = find(world.saveAllRatings, &Ratings::filmId, title.filmId);
  if (!season) return;
  const std::vector<std::int64_t>& watched = world.saveAllRatings[*season].hoursWatched;
  if (watched.empty() || watched.back() < minRerunHours) return;
  const double hours = rerunHours(game, title, static_cast<double>(watched.back()));
  if (hours <= 0) return;
  Ratings& counted = world.saveAllRatings.edit(*season);
  counted.hoursWatched.push_back(static_cast<std::int64_t>(hours));
  counted.weeksTracked.push_back(endedTrackingWeek(world));
}

void runWeek(Game& game, std::size_t index) {
  List<Syndication>& titles = game.world.saveAllSyndication;
  const std::int64_t weeksLeft = titles[index].weeksRemaining;
  if (weeksLeft < 1) return end(titles.edit(index));
  if (weeksLeft % weeksBetweenResiduals == 0) paySyndicationResidual(game, titles[index]);
  showReruns(game, titles[index]);
  titles.set(index, &Syndication::weeksRemaining, weeksLeft - 1);
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
