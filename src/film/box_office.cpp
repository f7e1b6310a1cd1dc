#include "film/box_office.h"

#include <cmath>

#include "banks/box_office_banks.h"
#include "banks/draw.h"
#include "core/chirps.h"
#include "core/find.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/box_office_payouts.h"
#include "film/fan_gain.h"
#include "film/film_record.h"
#include "film/markets.h"

namespace tb {

namespace {

constexpr double minForeignOpening = 5'000;  // dollars; with less, the film does not open in a foreign market
constexpr std::int64_t lastWeekOfRun = 7;
constexpr std::int64_t closingWeek = 8;

BoxOffice recordOf(const WorldState& world, const Audition& project, const Market& market, double opening) {
  return {.filmId = project.filmId,
          .countryId = market.countryId,
          .countryName = std::string(market.name),
          .title = project.title,
          .year = world.yearNumber,
          .weekNumberForTracking = world.weekNumberForTracking,
          .openingWeekend = opening,
          .totalGross = opening};
}

bool opensIn(const Market& market, double share, double gross) {
  return share > 0 && (gross > minForeignOpening || market.countryId == domesticMarket);
}

// Replaces the post of another film that opened this week.
void setOpeningPost(Game& game, const Audition& project, double domesticGross) {
  game.world.chirpId += 1;
  const std::string amount = shortMoney(game.locale, domesticGross);
  const std::string text =
      fill(drawFreshRow(game, bank::openingWeekend), {{"title", project.title}, {"amount", amount}});
  Chirp post = industryChirp(game, "Box Office Jojo", "boxOfficeJojo.png", text + " ");
  post.filmId = project.filmId;
  game.world.openingChirp = {std::move(post)};
}

void earnWeek(const WorldState& world, const Film& film, std::int64_t weeksSinceRelease, BoxOffice& market) {
  const double talk = std::pow(2, film.currentPopularity / 100) - 1;
  const double freshness = static_cast<double>(lastWeekOfRun - weeksSinceRelease) / 10;
  const double takings = market.openingWeekend * (talk + freshness) * 0.5;
  market.boxOfficeWeeklyEarnings.push_back(takings);
  market.weeksTracked.push_back(world.weekNumberForTracking);
  market.totalGross += takings;
}

// Returns the gross so far.
double earnWeekInAllMarkets(WorldState& world, const Film& film, std::int64_t weeksSinceRelease) {
  double gross = 0;
  forEachWith(world.saveAllBoxOfficeList, &BoxOffice::filmId, film.filmId, [&](std::size_t index) {
    BoxOffice& market = world.saveAllBoxOfficeList.edit(index);
    earnWeek(world, film, weeksSinceRelease, market);
    gross += market.totalGross;
    if (market.countryId == domesticMarket) world.chirpId += 1;  // a post id is skipped, without a post
  });
  return gross;
}

bool isDueToClose(const WorldState& world, const Film& film) {
  return film.typeOfFilm == filmType::feature && film.boxOfficeGross == 0 &&
         world.weekNumberForTracking - film.weekReleased >= closingWeek;
}

void closeRun(Game& game, std::size_t filmAt) {
  const auto gross = grossOf(game.world, game.world.saveAllFilmList[filmAt].filmId);
  if (!gross) return;
  Film& film = game.world.saveAllFilmList.edit(filmAt);
  film.boxOfficeGross = *gross;
  const std::string amount = shortMoney(game.locale, *gross);
  logActivity(game.world,
              fill(drawFreshRow(game, bank::closing), {{"title", film.title}, {"amount", amount}}));
}

}  // namespace

void openBoxOffice(Game& game, const Audition& project) {
  const double anticipation = std::pow(3, project.hypeRating / 100);
  const double base = anticipation * project.budget * RandomUnit(game.random, 0.03, 0.11);
  for (const Market& market : markets) {
    const double share = market.share + RandomUnit(game.random, -0.02, 0.04);
    const double gross = base * share;
    if (opensIn(market, share, gross)) {
      game.world.saveAllBoxOfficeList.push_back(recordOf(game.world, project, market, gross));
    }
    if (market.countryId == domesticMarket) setOpeningPost(game, project, gross);
  }
}

void advanceBoxOffice(Game& game, const Audition& project, std::int64_t weeksSinceRelease) {
  const auto index = find(game.world.saveAllFilmList, &Film::filmId, project.filmId);
  if (!index) return;
  const Film& film = game.world.saveAllFilmList[*index];
  const double freshness = static_cast<double>(lastWeekOfRun - weeksSinceRelease) / 10;
  gainFansFromTitle(game, project, qualityOf(film), freshness);
  const double gross = earnWeekInAllMarkets(game.world, film, weeksSinceRelease);
  if (weeksSinceRelease == lastWeekOfRun) payStakes(game, film, gross);
}

void postBoxOfficeChirp(Game& game) {
  if (game.world.openingChirp.empty()) return;
  Chirp post = game.world.openingChirp.front();
  game.world.openingChirp.clear();
  drawCrowdReach(game.random, post);
  addChirp(game.world, std::move(post));
}

void closeBoxOffice(Game& game) {
  for (std::size_t index = 0; index < game.world.saveAllFilmList.size(); ++index) {
    if (isDueToClose(game.world, game.world.saveAllFilmList[index])) closeRun(game, index);
  }
}

std::optional<double> grossOf(const WorldState& world, std::int64_t filmId) {
  std::optional<double> gross;
  const List<BoxOffice>& records = world.saveAllBoxOfficeList;
  forEachWith(records, &BoxOffice::filmId, filmId,
              [&](std::size_t index) { gross = gross.value_or(0) + records[index].totalGross; });
  return gross;
}

}  // namespace tb
