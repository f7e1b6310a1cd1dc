#include "wealth/angel_investing.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "banks/angel_banks.h"
#include "banks/draw.h"
#include "banks/names.h"
#include "career/colleagues.h"
#include "career/new_title.h"
#include "career/project_start.h"
#include "career/royalty_stake.h"
#include "career/schedule.h"
#include "core/find.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "film/catalogue.h"
#include "social/emailed_project.h"
#include "social/inbox.h"

namespace tb {

namespace {

constexpr double percent = 100;
constexpr std::int64_t smallestBudget = 500'000;  // dollars
constexpr double budgetGrowth = 400;              // of the budget's range, from no fame to full fame
constexpr double highestFame = 100;
constexpr std::int64_t weeksOfBoxOffice = 8;  // after the release; the share is paid then

// --- The opportunity ---

std::int64_t drawBudget(Game& game) {
  const double fame = std::clamp(static_cast<double>(game.world.saveFameLevel) / highestFame, 0.0, 1.0);
  const double range = static_cast<double>(smallestBudget) * std::pow(budgetGrowth, fame);
  return smallestBudget + RandomRange(game.random, static_cast<std::int64_t>(range));
}

const Movie& drawFilm(Game& game) {
  const Movie& drawn = RandomElement(game.random, investmentMovies());
  return newTitle(investmentMovies(), drawn, madeTitles(game.world), [](const Movie&) { return false; });
}

Audition drawProject(Game& game) {
  const std::int64_t now = game.world.weekNumberForTracking;
  CastingListing listing{.movie = &drawFilm(game), .isPrincipal = rolePart::background};
  listing.budget = static_cast<double>(drawBudget(game));
  listing.characterName = inventedName(game.random, game.world.isMale);
  listing.directorRating = drawDirectorRating(game);
  listing.directorName = inventedName(game.random);
  listing.weekAudition = now + 2 + RandomRange(game.random, 14);
  listing.weekToWork = listing.weekAudition + RandomBetween(game.random, 4, 20);
  Audition project = projectFrom(listing);
  startProject(game, project);
  project.isContinued = -1;
  project.didAct = 0;
  project.equityPercentage = static_cast<double>(5 + RandomRange(game.random, 16));
  return project;
}

// --- The bargain ---

// Weeks count from the day of the deal, not from the day the e-mail was opened.
void startNow(const WorldState& world, Audition& project) {
  const std::int64_t waited = world.weekNumberForTracking - project.weekSubmitted;
  project.weekSubmitted += waited;
  project.weekAudition += waited;
  project.weekToWork += waited;
  project.weekReleased += waited;
  project.workYear = yearOfWork(world, project.weekToWork);
  project.submittedYear = world.yearNumber;
}

Notice tooLittleCashForDeal() { return notEnoughCash("\nYou do not have enough cash for this deal."); }

Notice invest(Game& game, const InvestmentTalks& talks) {
  WorldState& world = game.world;
  Audition project = *opportunity(world, talks.emailId);
  const double cost = talks.totalPayment();
  world.filmId += 1;
  project.filmId = world.filmId;
  project.equityPercentage = static_cast<double>(talks.equityPercentage);
  project.equityDollarsInvested = cost;
  startNow(world, project);
  world.totalCashAvailable -= cost;
  const std::string line = tb::format("You invested {} for a {}% stake in {}", shortMoney(game.locale, cost),
                                      talks.equityPercentage, project.title);
  logActivity(world, line);
  world.saveAllAuditionList.push_back(std::move(project));
  closeEmailedProject(game, &WorldState::investmentOpportunities, talks.emailId);
  return {.title = "💰🤝 Locked In 🤝💰",
          .message = tb::format("\n\"{}\"\n\n{}.", drawFreshRow(game, bank::angelAccept), line)};
}

// --- The investments ---

bool isOnTheMarket(const WorldState& world, const Audition& project) {
  return project.funnelStage == funnel::wrapped &&
         world.weekNumberForTracking - project.weekReleased >= weeksOfBoxOffice;
}

double total(const InvestmentReturns& returns) { return returns.boxOffice + returns.syndication; }

InvestmentDetails detailsOf(const WorldState& world, const Audition& project) {
  const auto film = find(world.saveAllFilmList, &Film::filmId, project.filmId);
  return {.filmId = project.filmId,
          .ask = static_cast<std::int64_t>(project.equityDollarsInvested),
          .title = project.title,
          .rating = film ? world.saveAllFilmList[*film].imbdMetascore : 0,
          .subtitle = tb::format("{:.0f}% stake", project.equityPercentage),
          .type = project.typeOfFilm};
}

// Box-office gross, or for a series the prices of its syndication deals; 0 before the first.
double takingsOf(const WorldState& world, const Film& film) {
  if (film.typeOfFilm != filmType::series) return film.boxOfficeGross;
  const auto deals = find(world.saveAllSyndication, &Syndication::filmId, film.filmId);
  return deals ? static_cast<double>(world.saveAllSyndication[*deals].totalEarnings) : 0;
}

}  // namespace

const Audition* opportunity(const WorldState& world, std::int64_t emailId) {
  return emailedProject(world, &WorldState::investmentOpportunities, emailId);
}

void makeOpportunity(Game& game, std::int64_t emailId) {
  if (emailWith(game.world, emailId) == nullptr || opportunity(game.world, emailId) != nullptr) return;
  game.world.investmentOpportunities.push_back({.emailId = emailId, .project = drawProject(game)});
}

std::int64_t InvestmentTalks::chanceOfNegotiation() const {
  const std::int64_t above = std::max<std::int64_t>(equityPercentage - baseEquityPercentage, 0);
  return 100 - chanceOfNegotiationChange * above;
}

double InvestmentTalks::totalPayment() const {
  return filmBudget * static_cast<double>(equityPercentage) / percent;
}

InvestmentTalks beginInvestmentTalks(const WorldState& world, std::int64_t emailId) {
  const Audition& film = *opportunity(world, emailId);
  const auto equity = static_cast<std::int64_t>(film.equityPercentage);
  return {.emailId = emailId,
          .filmBudget = film.budget,
          .baseEquityPercentage = equity,
          .equityPercentage = equity,
          .negotiationBonus = negotiationBonus(world)};
}

void changeEquity(InvestmentTalks& talks, std::int64_t step) {
  talks.equityPercentage = std::clamp(talks.equityPercentage + step, minEquity, maxEquity);
}

Refusal investmentRefusal(const WorldState& world, const InvestmentTalks& talks) {
  if (world.totalEnergyAvailable < investmentEnergy) {
    return notEnoughEnergy("\nYou don't have enough energy for intensive negotiations.");
  }
  if (world.totalCashAvailable < talks.totalPayment()) return tooLittleCashForDeal();
  return {};
}

InvestmentAnswer offerInvestment(Game& game, const InvestmentTalks& talks) {
  WorldState& world = game.world;
  Refusal refusal = investmentRefusal(world, talks);
  if (world.totalEnergyAvailable < investmentEnergy) return {.notice = *std::move(refusal)};
  const std::int64_t roll = RandomRange(game.random, 100);
  if (talks.chanceOfNegotiation() + talks.negotiationBonus < roll + 1) {
    world.totalEnergyAvailable -= investmentEnergy;
    return {.notice = {.title = "❌ Negotiation Failed! ❌",
                       .message = "\nThe team declined your investment at that percentage."},
            .reply = std::string(drawFreshRow(game, bank::angelDecline))};
  }
  if (refusal) return {.notice = *std::move(refusal)};
  Notice notice = invest(game, talks);
  world.totalEnergyAvailable -= investmentEnergy;
  return {.notice = std::move(notice), .isFinal = true};
}

bool isInvestment(const Audition& project) {
  return project.didAct == 0 && project.isPrincipal != rolePart::ownProduction &&
         project.equityDollarsInvested > 0;
}

Investments listInvestments(const WorldState& world) {
  Investments investments;
  for (std::size_t index = world.saveAllAuditionList.size(); index-- > 0;) {
    const Audition& project = world.saveAllAuditionList[index];
    if (!isInvestment(project)) continue;
    investments.rows.push_back(detailsOf(world, project));
    investments.invested += project.equityDollarsInvested;
    if (!isOnTheMarket(world, project)) continue;
    investments.onTheMarket += 1;
    investments.gain += total(returnsOf(world, project.filmId)) - project.equityDollarsInvested;
  }
  return investments;
}

InvestmentReturns returnsOf(const WorldState& world, std::int64_t filmId) {
  InvestmentReturns returns;
  forEachWith(world.saveAllEquityPayouts, &EquityPayout::filmId, filmId, [&](std::size_t index) {
    const EquityPayout& payout = world.saveAllEquityPayouts[index];
    const bool boxOffice = payout.typeOfPayment == payoutSource::boxOffice;
    (boxOffice ? returns.boxOffice : returns.syndication) += payout.payOut;
  });
  return returns;
}

PastTakings pastTakings(const WorldState& world, std::int64_t typeOfFilm) {
  PastTakings past;
  for (const Film& film : world.saveAllFilmList) {
    const double takings = takingsOf(world, film);
    if (film.typeOfFilm != typeOfFilm || takings <= 0 || film.budget <= 0) continue;
    past.titles += 1;
    past.perDollar += takings / film.budget;
  }
  if (past.titles > 0) past.perDollar /= static_cast<double>(past.titles);
  return past;
}

}  // namespace tb
