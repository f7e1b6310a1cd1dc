#include "career/renewal_negotiation.h"

#include <string_view>
#include <utility>

#include "banks/draw.h"
#include "banks/negotiation_banks.h"
#include "career/royalty_stake.h"
#include "core/find.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"

namespace tb {

namespace {

constexpr std::int64_t minWeeksToWrap = 11;
constexpr double askStepFraction = 0.1;    // of what is offered
constexpr std::int64_t chanceFaces = 110;  // a chance of 100 fails one time in eleven

// --- Figures ---

bool isInstalment(const Audition& project, std::int64_t first, std::int64_t number) {
  return (project.filmId == first || project.parentSeriesFilmId == first) && project.seasonNumber == number;
}

const Audition* instalment(const WorldState& world, const Audition& project, std::int64_t number) {
  if (project.parentSeriesFilmId < 0) return nullptr;
  for (const Audition& other : world.saveAllAuditionList) {
    if (isInstalment(other, project.parentSeriesFilmId, number)) return &other;
  }
  return nullptr;
}

// The audience at the end of a season, in viewers, or a film's gross; nothing when it is not known.
std::optional<double> figureOf(const WorldState& world, const Audition* project) {
  if (project == nullptr) return {};
  if (project->typeOfFilm == filmType::series) {
    const auto ratings = find(world.saveAllRatings, &Ratings::filmId, project->filmId);
    if (!ratings || world.saveAllRatings[*ratings].premiereViews.empty()) return {};
    return world.saveAllRatings[*ratings].premiereViews.back();
  }
  const auto film = find(world.saveAllFilmList, &Film::filmId, project->filmId);
  if (!film) return {};
  return world.saveAllFilmList[*film].boxOfficeGross;
}

// --- Outcome ---

std::string logged(Game& game, const Audition& project, Bank answers) {
  std::string answer = fill(drawFreshRow(game, answers, subjectOf(project)), {{"title", project.title}});
  logLine(game.world, {NewsKind::negotiation, project.filmId},
          tb::format("You tried to negotiate pay and the director said: \"{}\"", answer));
  return answer;
}

Notice fail(Game& game, const Audition& project) {
  const std::string refusal = logged(game, project, bank::reasonsToRefuse);
  return {.title = "❌ Negotiation Failed! ❌",
          .message = tb::format("\n\"{}\"\n- {}", refusal, project.directorName)};
}

Notice agree(Game& game, const Audition& project) {
  const std::string answer = logged(game, project, bank::responsesToAgree);
  return {.title = "🤝 Success! ✅",
          .message = tb::format("\n\"{}\"\n- {}, DIRECTOR", answer, project.directorName)};
}

}  // namespace

bool isNegotiationOffered(const WorldState& world, const Audition& project) {
  return project.seasonNumber >= 2 && project.didNegotiate == 0 &&
         project.weekToWork - world.weekNumberForTracking >= minWeeksToWrap;
}

void openRenewalNegotiation(Game& game, std::int64_t filmId) {
  const auto index = find(game.world.saveAllAuditionList, &Audition::filmId, filmId);
  if (index) game.world.selectedAuditionIndex = static_cast<std::int64_t>(*index);
}

const Audition* previousInstalment(const WorldState& world, const Audition& project) {
  return instalment(world, project, project.seasonNumber - 1);
}

double successRatio(const WorldState& world, const Audition& project) {
  const auto latest = figureOf(world, instalment(world, project, project.seasonNumber - 1));
  const auto earlier = figureOf(world, instalment(world, project, project.seasonNumber - 2));
  return latest && earlier && *earlier > 0 ? *latest / *earlier : 1;
}

RenewalTalks beginRenewalTalks(const WorldState& world, const Audition& project) {
  RenewalTalks talks{.filmId = project.filmId,
                     .isRoyalty = project.royalty > 0,
                     .negotiationBonus = negotiationBonus(world)};
  talks.total = talks.isRoyalty ? project.royalty : project.payment;
  talks.increase = talks.total * askStepFraction;
  if (const double ratio = successRatio(world, project); ratio < 1) {
    talks.chanceOfNegotiation *= ratio;
    talks.chanceOfNegotiationChange =
        static_cast<std::int64_t>(static_cast<double>(talks.chanceOfNegotiationChange) * ratio);
  }
  return talks;
}

void raiseAsk(RenewalTalks& talks) {
  if (talks.paymentCount >= maxRenewalSteps) return;
  talks.paymentCount += 1;
  talks.total += talks.increase;
  talks.chanceOfNegotiation -= static_cast<double>(talks.chanceOfNegotiationChange);
}

void lowerAsk(RenewalTalks& talks) {
  if (talks.paymentCount < 1) return;
  talks.paymentCount -= 1;
  talks.total -= talks.increase;
  talks.chanceOfNegotiation += static_cast<double>(talks.chanceOfNegotiationChange);
}

Refusal renewalRefusal(const WorldState& world) {
  if (world.totalEnergyAvailable >= renewalNegotiationEnergy) return {};
  return notEnoughEnergy("\nYou don't have enough energy for intensive negotiations.");
}

RenewalAnswer negotiateRenewal(Game& game, const RenewalTalks& talks) {
  WorldState& world = game.world;
  if (Refusal refusal = renewalRefusal(world)) return {.notice = *std::move(refusal)};
  const double chance = talks.chanceOfNegotiation + static_cast<double>(talks.negotiationBonus);
  const bool agreed = chance > static_cast<double>(RandomRange(game.random, chanceFaces) + 1);
  Audition& project =
      world.saveAllAuditionList.edit(*find(world.saveAllAuditionList, &Audition::filmId, talks.filmId));
  project.didNegotiate = 1;
  if (agreed) (talks.isRoyalty ? project.royalty : project.payment) = talks.total;
  Notice notice = agreed ? agree(game, project) : fail(game, project);
  world.totalEnergyAvailable -= renewalNegotiationEnergy;
  return {.notice = std::move(notice), .isFinal = true};
}

}  // namespace tb
