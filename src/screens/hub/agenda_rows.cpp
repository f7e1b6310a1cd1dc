#include "screens/hub/agenda_rows.h"

#include <string>

#include "career/classes.h"
#include "career/traits.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/backstage/casting_network_view_controller.h"
#include "screens/love/latch_match_list_view_controller.h"
#include "screens/love/love_parts.h"
#include "screens/love/relationship_home_view_controller.h"
#include "screens/metflix/movie_award_view_controller.h"
#include "screens/offers/email_inbox_view_controller.h"
#include "screens/offers/renewal_negotiation_view_controller.h"
#include "screens/parts.h"
#include "screens/poster.h"
#include "screens/talent/acting_classes_view_controller.h"
#include "screens/talent/actors_guild_view_controller.h"
#include "screens/talent/showreel_view_controller.h"
#include "screens/talent/talent_traits_view_controller.h"
#include "screens/talent/trait_parts.h"
#include "screens/wealth/payment_transactions_view_controller.h"
#include "screens/work/active_audition_view_controller.h"
#include "screens/work/boost_parts.h"
#include "screens/work/job_board_view_controller.h"
#include "screens/work/open_project.h"
#include "screens/work/project_words.h"
#include "week/agenda.h"

namespace tb {

using namespace view;

namespace {

// Number of projects shown; the suggestions below them should be visible without scrolling.
constexpr std::size_t maxDue = 3;

// --- Due ---

// A rating on its own line, with a note if no more boosts are available.
std::string ratingWords(const char* name, double rating, const AgendaItem& item) {
  return tb::format("\n{} {:.0f} of 100{}", name, rating, item.boost ? "" : " • fully prepared");
}

std::string readiness(const AgendaItem& item, const Audition& project) {
  switch (item.kind) {
    case AgendaItem::Kind::audition:
      return ratingWords("Ready", project.rehearsalRating, item);
    case AgendaItem::Kind::shoot:
      return project.didAct == 1 ? ratingWords("Performance", project.performanceRating, item) : "";
    default:
      // Hype fills the opening of a film or a series; a commercial has none.
      if (project.typeOfFilm == filmType::commercial) return "";
      return tb::format("\nHype {:.0f}{}", project.hypeRating,
                        project.promoteHypeCount > 0 ? " • promoted" : "");
  }
}

Row dueRow(const WorldState& world, const AgendaItem& item) {
  const Audition& project = world.saveAllAuditionList[item.index];
  Row row{.label = progressWords(world, project),
          .detail = tb::format("{} • {}{}", titleWithSeason(project), project.role, readiness(item, project)),
          .picture = {posterOf(world, project)},
          .tone = item.week == world.weekNumberForTracking ? Tone::accent : Tone::plain,
          .press = leadingToProject(world, project.filmId)};
  if (item.boost) row.action = {boostButton(world, *item.boost, project, BoostWords::brief)};
  return row;
}

// --- Affordable now ---

Row trainingRow(const WorldState& world, const AgendaItem& item) {
  const Trait& trait = traits[item.index];
  return {.label = "Train",
          .detail = tb::format("{} is your weakest: {} of 100", spokenName(trait), world.*trait.points),
          .press = opens<TalentTraitsViewController>(),
          .action = {trainButton(world, item.index)}};
}

// --- Mail ---

Row mailRow(std::string label, const Email& email) {
  return {.label = std::move(label),
          .detail = email.title,
          .tone = Tone::accent,
          .press = opens<EmailInboxViewController>()};
}

Row negotiationRow(const WorldState& world, const Audition& project) {
  return {.label = "Negotiate your pay",
          .detail = tb::format("{} wraps {}", titleWithSeason(project), whenIs(world, project.weekToWork)),
          .picture = {posterOf(world, project)},
          .press = [id = project.filmId](Stage& stage) { openNegotiation(stage, id); }};
}

// --- Love ---

Row neglectRow(const Matches& partner) {
  return {.label = partner.name + " needs you",
          .detail = "Below 0 the relationship is over",
          .picture = {portraitOf(partner)},
          .tone = Tone::warning,
          .press = opens<RelationshipHomeViewController>()};
}

Row conversationRow(const WorldState& world, const Matches& match) {
  return {.label = "Write to " + match.name,
          .detail = "Matched on Latch " + agoWords(world, match.weekMatched),
          .picture = {portraitOf(match)},
          .press = opens<LatchMatchListViewController>()};
}

Row openRow(const Game& game, const AgendaItem& item) {
  const WorldState& world = game.world;
  switch (item.kind) {
    case AgendaItem::Kind::mail:
      return mailRow(item.count == 1 ? "You have mail" : tb::format("{} new emails", item.count),
                     world.saveAllEmailList[item.index]);
    case AgendaItem::Kind::gift:
      return mailRow("A gift waits in your inbox", world.saveAllEmailList[item.index]);
    case AgendaItem::Kind::lapse:
      return mailRow("This offer goes when the next email comes", world.saveAllEmailList[item.index]);
    case AgendaItem::Kind::neglect:
      return neglectRow(world.saveAllMatchesList[item.index]);
    case AgendaItem::Kind::conversation:
      return conversationRow(world, world.saveAllMatchesList[item.index]);
    case AgendaItem::Kind::negotiation:
      return negotiationRow(world, world.saveAllAuditionList[item.index]);
    case AgendaItem::Kind::submissions:
      return {.label = "Send showreels",
              .detail = tb::format("There is energy for {}", counted(item.count, "more role")),
              .press = opens<CastingNetworkViewController>()};
    case AgendaItem::Kind::job:
      return {.label = "Find work",
              .detail = "Weekly pay for weekly energy",
              .press = opens<JobBoardViewController>()};
    case AgendaItem::Kind::guild:
      return {.label = "Join the Actor's Guild",
              .detail = "You have the roles and the cash for it",
              .press = opens<ActorsGuildViewController>()};
    case AgendaItem::Kind::footageReel:
      return {.label = "Cut a new showreel",
              .detail = tb::format("Your footage is good for about {} more", counted(item.count, "point")),
              .press = opens<ShowreelViewController>()};
    default:
      return trainingRow(game.world, item);
  }
}

// --- Running ---

Row runningRow(const Game& game, const AgendaItem& item) {
  const WorldState& world = game.world;
  const std::string weeksLeft = counted(item.count, "week") + " left";
  switch (item.kind) {
    case AgendaItem::Kind::answers:
      return {.label = counted(item.count, "showreel") + (item.count == 1 ? " is out" : " are out"),
              .detail = "Waiting to hear",
              .press = opens<ActiveAuditionViewController>()};
    case AgendaItem::Kind::contract:
      return {.label = world.weeklyJobTitle,
              .value = weeksLeft,
              .detail = tb::format("{} a week", wholeMoney(game.locale, world.weeklyJobIncome)),
              .press = opens<JobBoardViewController>()};
    default:
      return {.label = className(world.saveAllCompletedClasses[item.index]),
              .value = weeksLeft,
              .press = opens<ActingClassesViewController>()};
  }
}

// --- First week ---

Row step(std::string label, std::string detail, bool taken, Operation press) {
  return {.label = std::move(label),
          .detail = std::move(detail),
          .tone = taken ? Tone::quiet : Tone::plain,
          .step = taken ? Row::Step::taken : Row::Step::open,
          .press = std::move(press)};
}

Section firstWeek(const FirstSteps& steps) {
  return {.heading = "THIS WEEK",
          .nodes = {step("Open your mail", "Four letters have come, and one is a gift", steps.hasClaimedGift,
                         opens<EmailInboxViewController>()),
                    step("Find work", "A job pays the rent while you wait for the call", steps.hasWork,
                         opens<JobBoardViewController>()),
                    step("Send showreels", "Submit for roles on the casting network: 20 energy each",
                         steps.hasSubmitted, opens<CastingNetworkViewController>()),
                    step("End the week", "Your energy comes back, and the answers come in", false, {})}};
}

// --- Last week's outcomes ---

Row outcomeRow(const Game& game, const Outcome& outcome) {
  const WorldState& world = game.world;
  if (outcome.kind == Outcome::Kind::paid) {
    return {.label = "Paid last week",
            .value = "+" + cash(game.locale, outcome.amount),
            .tone = Tone::good,
            .press = opens<PaymentTransactionsViewController>()};
  }
  if (outcome.kind == Outcome::Kind::nominated) {
    return {.label = "Nominated: " + world.saveAllMovieAwards[outcome.index].awardShow,
            .detail = counted(outcome.count, "nomination"),
            .tone = Tone::good,
            .press = opens<MovieAwardViewController>()};
  }
  if (outcome.kind == Outcome::Kind::notSelected) {
    return {.label = tb::format("Not selected for {}", counted(outcome.count, "role")),
            .tone = Tone::quiet,
            .press = openNotSelected};
  }
  const Audition& project = world.saveAllAuditionList[outcome.index];
  const char* const opened = project.typeOfFilm == filmType::series ? "Premiered" : "Opened";
  const char* const what = outcome.kind == Outcome::Kind::booked   ? "Booked"
                           : outcome.kind == Outcome::Kind::opened ? opened
                                                                   : "Wrapped";
  return {.label = tb::format("{}: {}", what, titleWithSeason(project)),
          .detail = project.role,
          .picture = {posterOf(world, project)},
          .tone = outcome.kind == Outcome::Kind::wrapped ? Tone::plain : Tone::good,
          .press = leadingToProject(world, project.filmId)};
}

// --- Sections ---

// The first few items, and a row that opens the list of the rest.
std::vector<Node> dueRows(const Game& game) {
  const std::vector<AgendaItem> items = dueItems(game.world);
  std::vector<Node> rows;
  for (std::size_t at = 0; at < items.size() && at < maxDue; ++at) {
    rows.emplace_back(dueRow(game.world, items[at]));
  }
  if (items.size() > maxDue) {
    rows.emplace_back(Row{.label = tb::format("{} more to come", items.size() - maxDue),
                          .press = opens<ActiveAuditionViewController>()});
  }
  return rows;
}

template <class Wanted>
void addOpenRows(std::vector<Node>& rows, const Game& game, Wanted isWanted) {
  for (const AgendaItem& item : openItems(game.world)) {
    if (isWanted(item.kind)) rows.emplace_back(openRow(game, item));
  }
}

template <class Wanted>
void addRunningRows(std::vector<Node>& rows, const Game& game, Wanted isWanted) {
  for (const AgendaItem& item : runningItems(game.world)) {
    if (isWanted(item.kind)) rows.emplace_back(runningRow(game, item));
  }
}

constexpr auto anyKind = [](AgendaItem::Kind) { return true; };
constexpr auto isMail = [](AgendaItem::Kind kind) {
  return kind == AgendaItem::Kind::mail || kind == AgendaItem::Kind::gift || kind == AgendaItem::Kind::lapse;
};
constexpr auto isLove = [](AgendaItem::Kind kind) {
  return kind == AgendaItem::Kind::neglect || kind == AgendaItem::Kind::conversation;
};
constexpr auto isGuild = [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::guild; };

// What is due, and what of the wanted kinds there is room for. The guild opens once in a career, so it leads.
template <class Wanted>
std::vector<Node> rowsAhead(const Game& game, Wanted isWanted) {
  std::vector<Node> rows;
  addOpenRows(rows, game, isGuild);
  rows.append_range(dueRows(game));
  addOpenRows(rows, game, [&](AgendaItem::Kind kind) { return !isGuild(kind) && isWanted(kind); });
  return rows;
}

std::vector<Node> underNext(std::vector<Node> rows) {
  if (rows.empty()) return {};
  return {Section{.heading = "NEXT", .nodes = std::move(rows)}};
}

}  // namespace

Section thisWeek(const Game& game) {
  if (const auto steps = firstSteps(game.world)) return firstWeek(*steps);
  Section section{.heading = "THIS WEEK", .nodes = rowsAhead(game, anyKind)};
  addRunningRows(section.nodes, game, anyKind);
  return section;
}

std::vector<Node> lastWeek(const Game& game) {
  Section section{.heading = "LAST WEEK"};
  for (const Outcome& outcome : lastWeeksOutcomes(game.world)) {
    section.nodes.emplace_back(outcomeRow(game, outcome));
  }
  if (section.nodes.empty()) return {};
  return {std::move(section)};
}

std::vector<Node> nextAtWork(const Game& game) {
  std::vector<Node> rows = rowsAhead(game, [](AgendaItem::Kind kind) {
    return kind != AgendaItem::Kind::training && !isMail(kind) && !isLove(kind);
  });
  addRunningRows(rows, game, [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::answers; });
  return underNext(std::move(rows));
}

std::vector<Node> nextInPublic(const Game& game) {
  std::vector<Node> rows;
  addOpenRows(rows, game, isMail);
  for (const AgendaItem& item : dueItems(game.world)) {
    const bool isRelease = item.kind == AgendaItem::Kind::release;
    if (isRelease && rows.size() < maxDue) rows.emplace_back(dueRow(game.world, item));
  }
  return underNext(std::move(rows));
}

std::vector<Node> nextInLife(const Game& game) {
  std::vector<Node> rows;
  addOpenRows(rows, game,
              [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::training || isLove(kind); });
  addRunningRows(rows, game, [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::actingClass; });
  return underNext(std::move(rows));
}

std::vector<Node> nextForMoney(const Game& game) {
  std::vector<Node> rows;
  addOpenRows(rows, game, [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::job; });
  addRunningRows(rows, game, [](AgendaItem::Kind kind) { return kind == AgendaItem::Kind::contract; });
  for (const Outcome& outcome : lastWeeksOutcomes(game.world)) {
    if (outcome.kind == Outcome::Kind::paid) rows.emplace_back(outcomeRow(game, outcome));
  }
  return underNext(std::move(rows));
}

}  // namespace tb
