#include "week/agenda.h"

#include <algorithm>

#include "career/guild.h"
#include "career/renewal_negotiation.h"
#include "career/showreel.h"
#include "career/submission.h"
#include "career/traits.h"
#include "core/ended_week.h"
#include "film/awards.h"
#include "life/energy.h"
#include "life/partner.h"
#include "social/inbox.h"

namespace tb {

namespace {

using ItemKind = AgendaItem::Kind;

// A new reel is suggested when it would gain at least this many points.
constexpr std::int64_t minReelGain = 3;

// The next dated event of the project, if any.
std::optional<AgendaItem> dueOf(const WorldState& world, const Audition& project) {
  const std::int64_t now = world.weekNumberForTracking;
  switch (project.funnelStage) {
    case funnel::invited:
      if (project.didAct != 1 || project.weekAudition < now) return {};
      return AgendaItem{.kind = ItemKind::audition, .week = project.weekAudition};
    case funnel::booked:
      return AgendaItem{.kind = ItemKind::shoot, .week = project.weekToWork};
    case funnel::wrapped:
      if (project.weekReleased < now) return {};
      return AgendaItem{.kind = ItemKind::release, .week = project.weekReleased};
    default:
      return {};
  }
}

std::int64_t countWaiting(const WorldState& world) {
  return std::ranges::count_if(world.saveAllAuditionList, [](const Audition& project) {
    return project.funnelStage == funnel::submitted && project.didAct == 1;
  });
}

// --- Mail ---

// The newest e-mail of those that came with the week that ended. The welcome e-mails are no news.
std::optional<AgendaItem> newMail(const WorldState& world) {
  const List<Email>& emails = world.saveAllEmailList;
  std::int64_t count = 0;
  for (std::size_t index = emails.size(); index-- > 0; ++count) {
    if (emails[index].weekNumberForTracking < endedTrackingWeek(world)) break;
    if (emails[index].typeOfDeal == deal::help) break;
  }
  if (count == 0) return {};
  return AgendaItem{.kind = ItemKind::mail, .index = emails.size() - 1, .count = count};
}

std::optional<AgendaItem> waitingGift(const WorldState& world) {
  const List<Email>& emails = world.saveAllEmailList;
  const auto gift = std::ranges::find_if(emails, isGift);
  if (gift == emails.end()) return {};
  return AgendaItem{.kind = ItemKind::gift, .index = static_cast<std::size_t>(gift - emails.begin())};
}

std::optional<AgendaItem> lapsingOffer(const WorldState& world) {
  if (!isInboxFull(world)) return {};
  const std::int64_t oldest = world.saveAllEmailList.front().typeOfDeal;
  if (oldest == deal::help || oldest == deal::message) return {};
  return AgendaItem{.kind = ItemKind::lapse};
}

// --- Love ---

// A partner who is about to leave.
std::optional<AgendaItem> neglectedPartner(const WorldState& world) {
  constexpr double lowMeter = 25;
  const auto index = partnerIndex(world);
  if (!index || world.saveAllMatchesList[*index].relationshipStatus >= lowMeter) return {};
  return AgendaItem{.kind = ItemKind::neglect, .index = *index};
}

// The latest match of a single player.
std::optional<AgendaItem> openConversation(const WorldState& world) {
  if (currentPartner(world) != nullptr) return {};
  for (std::size_t index = world.saveAllMatchesList.size(); index-- > 0;) {
    if (world.saveAllMatchesList[index].relationshipState != bond::matched) continue;
    return AgendaItem{.kind = ItemKind::conversation, .index = index};
  }
  return {};
}

// The next one to wrap.
std::optional<AgendaItem> negotiation(const WorldState& world) {
  if (renewalRefusal(world)) return {};
  const List<Audition>& projects = world.saveAllAuditionList;
  std::optional<AgendaItem> item;
  for (std::size_t index = 0; index < projects.size(); ++index) {
    if (!isNegotiationOffered(world, projects[index])) continue;
    if (item && projects[item->index].weekToWork <= projects[index].weekToWork) continue;
    item = AgendaItem{.kind = ItemKind::negotiation, .index = index};
  }
  return item;
}

// No submissions are suggested while too many roles cost energy.
std::optional<AgendaItem> submissions(const WorldState& world) {
  const std::int64_t count = world.totalEnergyAvailable / submissionEnergy;
  if (count == 0 || manyRolesStress(world, world.weekNumberForTracking) > 0) return {};
  return AgendaItem{.kind = ItemKind::submissions, .count = count};
}

std::optional<AgendaItem> footageReel(const WorldState& world) {
  const std::int64_t gain = likelyFootageScore(world) - world.showreelScore;
  if (gain < minReelGain || reelRefusal(world, footageReelCost)) return {};
  return AgendaItem{.kind = ItemKind::footageReel, .count = gain};
}

// Suggests the weakest trait, because it counts twice in the talent level.
std::optional<AgendaItem> training(const WorldState& world) {
  std::optional<std::size_t> weakest;
  for (std::size_t index = 0; index < traits.size(); ++index) {
    const Trait& trait = traits[index];
    if (world.*trait.points >= maxTrait || traitRefusal(world, trait)) continue;
    if (!weakest || world.*trait.points < world.*traits[*weakest].points) weakest = index;
  }
  if (!weakest) return {};
  return AgendaItem{.kind = ItemKind::training, .index = *weakest};
}

double paidLastWeek(const WorldState& world) {
  double paid = 0;
  const List<WeeklyEarnings>& earnings = world.saveAllWeeklyEarnings;
  // The list is oldest first, and payments are dated in the following week.
  for (std::size_t index = earnings.size(); index-- > 0;) {
    const WeeklyEarnings& earned = earnings[index];
    if (earned.weekNumberForTracking != world.weekNumberForTracking) break;
    paid += earned.sessionEarned + earned.buyoutEarned + earned.residualsEarned;
  }
  return paid;
}

// Whether the performer read for the role in that week. Renewed seasons, sagas and roles that an agent booked
// have an audition week too, but nobody auditions for them; a role that was rehearsed was read for.
bool wasReadFor(const Audition& project, std::int64_t week) {
  const bool isOwnSubmission = project.sourceId == 0 && project.parentSeriesFilmId < 0;
  return project.weekAudition == week && (isOwnSubmission || project.rehearsalBoostCount > 0);
}

std::optional<Outcome::Kind> outcomeOf(const Audition& project, std::int64_t ended) {
  if (project.funnelStage == funnel::booked && wasReadFor(project, ended)) return Outcome::Kind::booked;
  if (project.funnelStage != funnel::wrapped) return {};
  if (project.weekReleased == ended) return Outcome::Kind::opened;
  if (project.weekToWork == ended) return Outcome::Kind::wrapped;
  return {};
}

}  // namespace

std::vector<AgendaItem> dueItems(const WorldState& world) {
  std::vector<AgendaItem> items;
  for (std::size_t index = 0; index < world.saveAllAuditionList.size(); ++index) {
    const Audition& project = world.saveAllAuditionList[index];
    if (auto item = dueOf(world, project)) {
      item->index = index;
      item->boost = boostOf(world, project);
      items.push_back(*item);
    }
  }
  std::ranges::stable_sort(items, [](const AgendaItem& a, const AgendaItem& b) {
    return std::pair(a.week, a.kind) < std::pair(b.week, b.kind);
  });
  return items;
}

std::vector<AgendaItem> openItems(const WorldState& world) {
  std::vector<AgendaItem> items;
  const auto add = [&](const std::optional<AgendaItem>& item) {
    if (item) items.push_back(*item);
  };
  if (world.isSAG == 0 && !guildRefusal(world)) add(AgendaItem{.kind = ItemKind::guild});
  add(newMail(world));
  add(waitingGift(world));
  add(lapsingOffer(world));
  add(neglectedPartner(world));
  add(openConversation(world));
  add(negotiation(world));
  add(footageReel(world));
  add(submissions(world));
  if (world.weeklyJobContractRemaining < 1) add(AgendaItem{.kind = ItemKind::job});
  add(training(world));
  return items;
}

std::vector<AgendaItem> runningItems(const WorldState& world) {
  std::vector<AgendaItem> items;
  if (const std::int64_t waiting = countWaiting(world); waiting > 0) {
    items.push_back({.kind = ItemKind::answers, .count = waiting});
  }
  if (world.weeklyJobContractRemaining >= 1) {
    items.push_back({.kind = ItemKind::contract, .count = world.weeklyJobContractRemaining});
  }
  for (std::size_t index = 0; index < world.saveAllCompletedClasses.size(); ++index) {
    const std::int64_t weeks = world.saveAllCompletedClasses[index].weeksRemaining;
    if (weeks > 0) items.push_back({.kind = ItemKind::actingClass, .index = index, .count = weeks});
  }
  return items;
}

std::optional<FirstSteps> firstSteps(const WorldState& world) {
  if (world.weekNumberForTracking != 1) return {};
  return FirstSteps{.hasClaimedGift = !waitingGift(world),
                    .hasWork = world.weeklyJobContractRemaining >= 1,
                    .hasSubmitted = !world.saveAllAuditionList.empty()};
}

std::vector<Outcome> lastWeeksOutcomes(const WorldState& world) {
  const std::int64_t ended = endedTrackingWeek(world);
  std::vector<Outcome> outcomes;
  if (const auto nominations = newNominations(world); !nominations.empty()) {
    outcomes.push_back(
        {.kind = Outcome::Kind::nominated, .index = nominations.front(), .count = std::ssize(nominations)});
  }
  std::int64_t lostRoles = 0;
  for (std::size_t index = 0; index < world.saveAllAuditionList.size(); ++index) {
    const Audition& project = world.saveAllAuditionList[index];
    if (const auto kind = outcomeOf(project, ended)) outcomes.push_back({.kind = *kind, .index = index});
    if (project.funnelStage == funnel::invited && project.didAct == 1 && project.weekAudition == ended) {
      lostRoles += 1;
    }
  }
  if (const double paid = paidLastWeek(world); paid > 0) {
    outcomes.push_back({.kind = Outcome::Kind::paid, .amount = paid});
  }
  if (lostRoles > 0) outcomes.push_back({.kind = Outcome::Kind::notSelected, .count = lostRoles});
  std::ranges::stable_sort(outcomes, {}, &Outcome::kind);
  return outcomes;
}

}  // namespace tb
