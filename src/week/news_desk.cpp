#include "week/news_desk.h"

#include <algorithm>
#include <array>
#include <tuple>

#include "core/find.h"

namespace tb {

namespace {

constexpr auto rules = std::to_array<NewsRule>({
    {.kind = NewsKind::award, .stamp = "WINNER", .mood = NewsMood::good, .moment = Occasion::always},
    {.kind = NewsKind::wedding, .stamp = "MARRIED", .mood = NewsMood::good, .moment = Occasion::always},
    {.kind = NewsKind::birth, .stamp = "IT'S A BABY", .mood = NewsMood::good, .moment = Occasion::always},
    {.kind = NewsKind::company, .stamp = "FOUNDED", .mood = NewsMood::good, .moment = Occasion::always},
    {.kind = NewsKind::guild, .stamp = "MEMBER", .mood = NewsMood::good, .moment = Occasion::always},
    {.kind = NewsKind::opening, .stamp = "OPENS", .mood = NewsMood::good, .moment = Occasion::firstOrLarge},
    {.kind = NewsKind::premiere,
     .stamp = "PREMIERE",
     .mood = NewsMood::good,
     .moment = Occasion::firstOrLarge},
    {.kind = NewsKind::offer, .stamp = "BOOKED", .mood = NewsMood::good, .moment = Occasion::firstOrLarge},
    {.kind = NewsKind::renewal, .stamp = "RENEWED", .mood = NewsMood::good},
    {.kind = NewsKind::syndication, .stamp = "SOLD", .mood = NewsMood::good},
    {.kind = NewsKind::chartEntry, .stamp = "TOP 10", .mood = NewsMood::good},
    {.kind = NewsKind::match, .stamp = "MATCH", .mood = NewsMood::promising, .moment = Occasion::always},
    {.kind = NewsKind::wrap, .stamp = "WRAPPED", .mood = NewsMood::good},
    {.kind = NewsKind::payday, .stamp = "PAID", .mood = NewsMood::good},
    {.kind = NewsKind::invitation, .stamp = "CALLBACK", .mood = NewsMood::promising},
    {.kind = NewsKind::agent, .stamp = "AGENT", .mood = NewsMood::promising},
    {.kind = NewsKind::classDone, .stamp = "CLASS DONE", .mood = NewsMood::promising},
    {.kind = NewsKind::mail, .stamp = "MAIL", .mood = NewsMood::promising},
    {.kind = NewsKind::negotiation, .stamp = "NEGOTIATED", .leads = false},
    {.kind = NewsKind::cancellation, .stamp = "CANCELED", .mood = NewsMood::bad},
    {.kind = NewsKind::breakup, .stamp = "SPLIT", .mood = NewsMood::bad, .leads = false},
    {.kind = NewsKind::jobEnded, .stamp = "JOB OVER", .mood = NewsMood::bad, .leads = false},
    {.kind = NewsKind::refusal,
     .stamp = "NOT SELECTED",
     .mood = NewsMood::quiet,
     .leads = false,
     .folds = true},
    {.kind = NewsKind::silence, .stamp = "NO ANSWER", .mood = NewsMood::quiet, .leads = false, .folds = true},
});

constexpr std::size_t rankOf(NewsKind kind) {
  return static_cast<std::size_t>(std::ranges::find(rules, kind, &NewsRule::kind) - rules.begin());
}

constexpr bool everyKindHasARule() {
  for (int kind = 0; kind <= static_cast<int>(NewsKind::company); ++kind) {
    if (rankOf(static_cast<NewsKind>(kind)) == rules.size()) return false;
  }
  return rules.size() == static_cast<std::size_t>(NewsKind::company) + 1;
}
static_assert(everyKindHasARule());

const Audition* projectOf(const WorldState& world, std::int64_t filmId) {
  const auto& projects = world.saveAllAuditionList;
  const auto index = find(projects, &Audition::filmId, filmId);
  return index ? &projects[*index] : nullptr;
}

// An offer is large for a lead; other news is large for a principal role.
bool isLarge(const News& item, const Audition& project) {
  if (item.kind == NewsKind::offer) return project.role == "Lead";
  return project.isPrincipal >= rolePart::principal;
}

bool isInFeed(std::span<const News> week, NewsKind kind, std::int64_t filmId) {
  return std::ranges::any_of(week,
                             [&](const News& item) { return item.kind == kind && item.filmId == filmId; });
}

// Whether news of this kind happened before this week. A first series premieres even after films have opened.
bool happenedBefore(const WorldState& world, NewsKind kind, std::span<const News> week) {
  return std::ranges::any_of(world.saveAllAuditionList, [&](const Audition& project) {
    if (project.didAct < 1 || isInFeed(week, kind, project.filmId)) return false;
    if (kind == NewsKind::offer) return project.funnelStage >= funnel::booked;
    const bool isSeries = project.typeOfFilm == filmType::series;
    return project.funnelStage == funnel::wrapped && project.typeOfFilm != filmType::commercial &&
           isSeries == (kind == NewsKind::premiere) && project.weekReleased < world.weekNumberForTracking;
  });
}

}  // namespace

std::span<const NewsRule> newsRules() { return rules; }

const NewsRule& newsRule(NewsKind kind) { return rules[rankOf(kind)]; }

bool isMoment(const WorldState& world, const News& item, std::span<const News> week) {
  const Occasion occasion = newsRule(item.kind).moment;
  if (occasion != Occasion::firstOrLarge) return occasion == Occasion::always;
  const Audition* const project = projectOf(world, item.filmId);
  if (project == nullptr || project->didAct < 1) return false;
  return isLarge(item, *project) || !happenedBefore(world, item.kind, week);
}

std::size_t headlineOf(const WorldState& world, std::span<const News> week) {
  const auto standing = [&](const News& item) {
    return std::tuple(!isMoment(world, item, week), rankOf(item.kind), -item.amount);
  };
  std::size_t best = week.size();
  for (std::size_t index = 0; index < week.size(); ++index) {
    if (!newsRule(week[index].kind).leads) continue;
    if (best == week.size() || standing(week[index]) < standing(week[best])) best = index;
  }
  return best;
}

}  // namespace tb
