#include "career/renewals.h"

#include <algorithm>
#include <string>

#include "banks/audition_banks.h"
#include "banks/draw.h"
#include "career/colleagues.h"
#include "career/preparation.h"
#include "career/schedule.h"
#include "core/bands.h"
#include "core/find.h"
#include "core/log.h"
#include "film/catalogue.h"
#include "film/film_record.h"

namespace tb {

namespace {

constexpr std::int64_t weeksUntilVerdict = 11;  // after the release
constexpr std::int64_t endedForGood = -1;       // Audition::isContinued
constexpr std::int64_t outsideSagas = -1;       // Audition::franchise and franchiseId

// --- The verdict ---

enum class Verdict : std::uint8_t {
  wait,    // decided in a later week
  retire,  // ends without a log line
  end,     // ends with a log line
  carryOn,
};

// A rating between the two rows gives no verdict.
struct RatingBand {
  double from;
  double upTo;
  bool canContinue;
};
constexpr std::array<RatingBand, 2> ratingBands = {{
    {.from = 0, .upTo = 4, .canContinue = false},
    {.from = 4.01, .upTo = 300, .canContinue = true},
}};

Verdict verdictOn(Game& game, double rating) {
  const RatingBand* const band = bandOf(ratingBands, rating);
  if (band == nullptr) return Verdict::wait;
  if (!band->canContinue) return Verdict::end;
  return rating > static_cast<double>(RandomBetween(game.random, 1, 12)) ? Verdict::carryOn : Verdict::end;
}

Verdict judge(Game& game, const Audition& project) {
  const WorldState& world = game.world;
  if (project.isPrincipal != rolePart::principal) return Verdict::retire;
  if (world.weekNumberForTracking - project.weekReleased < weeksUntilVerdict) return Verdict::wait;
  const auto film = find(world.saveAllFilmList, &Film::filmId, project.filmId);
  if (!film) return Verdict::retire;
  return verdictOn(game, world.saveAllFilmList[*film].imbdRating);
}

// Only feature films of a saga can continue.
bool isUndecided(const Audition& project, std::int64_t typeOfFilm) {
  const bool canContinue = typeOfFilm == filmType::series || project.franchiseId != outsideSagas;
  return project.funnelStage >= funnel::wrapped && project.isContinued == 0 &&
         project.typeOfFilm == typeOfFilm && canContinue;
}

// --- The next instalment ---

struct Factors {
  double low;
  double high;
};

// The factor on budget and pay by the mean of the rating and the metascore's whole tens.
struct SuccessBand {
  double from;
  double upTo;
  Factors pay;
  Factors royalty;
};
constexpr std::array<SuccessBand, 5> successBands = {{
    {.from = 0, .upTo = 3, .pay = {1, 1.1}, .royalty = {1, 1.02}},
    {.from = 3.01, .upTo = 5, .pay = {1.1, 1.25}, .royalty = {1.02, 1.04}},
    {.from = 5.01, .upTo = 7, .pay = {1.25, 1.75}, .royalty = {1.04, 1.06}},
    {.from = 7.01, .upTo = 8.5, .pay = {1.5, 2}, .royalty = {1.06, 1.08}},
    {.from = 8.501, .upTo = 250, .pay = {1.75, 2.25}, .royalty = {1.08, 1.12}},
}};
constexpr SuccessBand betweenBands = {.pay = {1.1, 1.1}, .royalty = {1.1, 1.1}};

constexpr double maxInstalmentBudget = 3e9;  // dollars

double drawFactor(Game& game, Factors factors) { return RandomUnit(game.random, factors.low, factors.high); }

const SuccessBand& successOf(const Film& film) {
  const double success = (film.imbdRating + static_cast<double>(film.imbdMetascore / 10)) * 0.5;
  const SuccessBand* const band = bandOf(successBands, success);
  return band == nullptr ? betweenBands : *band;
}

void setTerms(Game& game, Audition& next, const SuccessBand& success) {
  const double factor = drawFactor(game, success.pay);
  next.budget = std::min(factor * next.budget, maxInstalmentBudget);
  next.payment *= (factor + RandomUnit(game.random, 0.5, 1.5)) * 0.5;
  if (next.royalty > 0) next.royalty *= drawFactor(game, success.royalty);
  next.buyout = 0;
}

void setSchedule(Game& game, Audition& next) {
  const Schedule schedule = drawSchedule(game);
  next.weekSubmitted = game.world.weekNumberForTracking;
  next.weekAudition = schedule.weekAudition;
  next.weekToWork = schedule.weekToWork;
  next.weekReleased = drawReleaseWeek(game, next.weekToWork);
  next.workYear = yearOfWork(game.world, next.weekToWork);
}

// Resets the performer's preparation. Everything else is copied: cast and crew, agency, residual, and whether
// the title was promoted.
void setPreparation(Game& game, Audition& next) {
  next.rehearsalRating = drawRehearsalRating(game);
  next.performanceRating = drawPerformanceRating(game, next.rehearsalRating);
  next.rehearsalBoostCount = 0;
  next.performanceBoostCount = 0;
  next.didBribe = 0;
  next.didNegotiate = 0;
  next.didAct = 1;
  next.equityPercentage = 0;
  next.equityDollarsInvested = 0;
  // The hype uses a newly drawn director's form, although the director stays the same.
  next.hypeRating = static_cast<double>(drawHypeRating(game, drawDirectorForm(game)));
}

// The performer is in 8, 10 or 12 episodes, at most in all of the season.
void setEpisodes(Game& game, Audition& next) {
  const std::int64_t episodes = 8 + 2 * RandomRange(game.random, 3);
  next.numberOfEpisodesActed = std::min(next.numberOfEpisodesTotal, episodes);
}

// The next instalment of `project`, booked. The caller sets saga and episodes.
Audition nextInstalment(Game& game, const Audition& project) {
  WorldState& world = game.world;
  world.filmId += 1;
  Audition next = project;
  next.filmId = world.filmId;
  if (project.seasonNumber < 2) next.parentSeriesFilmId = project.filmId;
  next.seasonNumber += 1;
  next.isContinued = 0;
  next.funnelStage = funnel::booked;
  next.franchise = outsideSagas;
  next.franchiseId = outsideSagas;
  setSchedule(game, next);
  setPreparation(game, next);
  const auto film = find(world.saveAllFilmList, &Film::filmId, project.filmId);
  setTerms(game, next, film ? successOf(world.saveAllFilmList[*film]) : betweenBands);
  return next;
}

void renew(WorldState& world, std::size_t index, Audition next) {
  world.saveAllAuditionList.edit(index).isContinued += 1;
  world.saveAllAuditionList.push_back(std::move(next));
}

void end(Game& game, std::size_t index, Bank bank) {
  Audition& project = game.world.saveAllAuditionList.edit(index);
  project.isContinued = endedForGood;
  logLine(game.world, {NewsKind::cancellation, project.filmId},
          fill(drawFreshRow(game, bank), {{"title", project.title}}));
}

// --- Series ---

void orderSeason(Game& game, std::size_t index) {
  WorldState& world = game.world;
  Audition next = nextInstalment(game, world.saveAllAuditionList[index]);
  setEpisodes(game, next);
  logLine(world, {NewsKind::renewal, next.filmId},
          fill(drawFreshRow(game, bank::seriesRenewal),
               {{"title", next.title}, {"season", std::to_string(next.seasonNumber)}}));
  renew(world, index, std::move(next));
}

// --- Sagas ---

const MovieFranchise* nextEntry(const Audition& project) {
  const auto entries = movieFranchises();
  const auto next = std::ranges::find_if(entries, [&](const MovieFranchise& entry) {
    return entry.id == project.franchiseId && entry.movieNumber > project.franchise;
  });
  return next == entries.end() ? nullptr : &*next;
}

void orderFilm(Game& game, std::size_t index, const MovieFranchise& entry) {
  WorldState& world = game.world;
  Audition next = nextInstalment(game, world.saveAllAuditionList[index]);
  next.title = entry.title;
  next.description = entry.shortSummary;
  next.roleDescription = fill(entry.longSummaryTemplate, {{"name", next.characterName}});
  next.imageString = entry.imageString;
  next.genres = entry.genre;
  next.franchise = entry.movieNumber;
  next.franchiseId = entry.id;
  logLine(world, {NewsKind::renewal, next.filmId},
          fill(drawFreshRow(game, bank::sagaRenewal),
               {{"title", world.saveAllAuditionList[index].title}, {"nextTitle", next.title}}));
  renew(world, index, std::move(next));
}

// --- The passes ---

// Handles the projects that existed when the pass began, not the ones it adds.
template <class CarryOn>
void decide(Game& game, std::int64_t typeOfFilm, Bank endBank, CarryOn carryOn) {
  WorldState& world = game.world;
  const std::size_t records = world.saveAllAuditionList.size();
  bool decided = false;
  for (std::size_t index = 0; index < records; ++index) {
    if (!isUndecided(world.saveAllAuditionList[index], typeOfFilm)) continue;
    const Verdict verdict = judge(game, world.saveAllAuditionList[index]);
    if (verdict == Verdict::retire) world.saveAllAuditionList.edit(index).isContinued = endedForGood;
    if (verdict == Verdict::end) end(game, index, endBank);
    if (verdict == Verdict::carryOn) carryOn(index);
    decided = decided || verdict != Verdict::wait;
  }
  if (!decided) return;
}

}  // namespace

void renewSeries(Game& game) {
  decide(game, filmType::series, bank::seriesCancellation,
         [&](std::size_t index) { orderSeason(game, index); });
}

void renewSaga(Game& game) {
  decide(game, filmType::feature, bank::sagaEnding, [&](std::size_t index) {
    const MovieFranchise* const entry = nextEntry(game.world.saveAllAuditionList[index]);
    if (entry == nullptr) return end(game, index, bank::sagaEnding);
    orderFilm(game, index, *entry);
  });
}

}  // namespace tb
