#include "life/week_events.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "banks/draw.h"
#include "banks/events_banks.h"
#include "career/traits.h"
#include "core/bands.h"
#include "core/format.h"
#include "core/house_notices.h"
#include "core/log.h"
#include "core/number_style.h"
#include "core/talent_scores.h"
#include "core/text.h"
#include "film/movie_reviews.h"
#include "life/partner.h"

namespace tb {

namespace {

// How many buttons a roll of 0 to 100 brings.
struct CountBand {
  std::int64_t upTo;
  int buttons;
};
constexpr std::array<CountBand, 4> counts = {
    {{.upTo = 20, .buttons = 0}, {.upTo = 60, .buttons = 1}, {.upTo = 90, .buttons = 2}, {100, 3}}};

struct EventTerms {
  std::string_view title;
  std::int64_t energy;
};
constexpr std::array<EventTerms, 9> terms = {{
    {.title = "Local Theater 30", .energy = 15},
    {.title = "Script Reading 25", .energy = 25},
    {.title = "Side Hustle 15", .energy = 30},
    {.title = "Health Checkup ", .energy = 0},
    {.title = "Talent Chance 50", .energy = 50},
    {.title = "Movie Review 25", .energy = reviewEnergy},
    {.title = "Relationship 10", .energy = 10},
    {.title = "Public Image 10", .energy = 10},
    {.title = "Shark Box 10", .energy = 10},
}};
constexpr EventTerms streetMime = {.title = "Street Mime 15", .energy = 25};

std::size_t indexOf(WeekEvent event) { return static_cast<std::size_t>(event) - 1; }

bool isStreetMime(const WorldState& world, WeekEvent event) {
  return event == WeekEvent::relationship && !isWithPartner(world, event);
}

const EventTerms& termsOf(const WorldState& world, WeekEvent event) {
  return isStreetMime(world, event) ? streetMime : terms[indexOf(event)];
}

// The refusal's sentence. The last row is the street mime's.
const std::string& refusalWords(const WorldState& world, WeekEvent event) {
  const auto rows = rowsOf(bank::eventRefusals);
  return isStreetMime(world, event) ? rows.back() : rows[indexOf(event)];
}

// --- Effects ---

WeekEventResult playLocally(Game& game) {
  constexpr double least = 1;
  constexpr double most = 5;
  const double gain = RandomUnit(game.random, least, most);
  game.world.experience += gain;
  return {tb::format("{} Experience +{:.1f}", drawFreshRow(game, bank::localTheater), gain), 1};
}

WeekEventResult earn(Game& game, Bank lines) {
  WorldState& world = game.world;
  const PayRange range = sidePay(world);
  const double pay = RandomUnit(game.random, range.least, range.most);
  world.totalCashAvailable += pay;
  world.weekNetIncome += pay;
  world.yearToDatePaycheck += pay;
  return {fill(drawFreshRow(game, lines), {{"amount", shortMoney(game.locale, pay)}}), 1};
}

WeekEventResult checkHealth(Game& game) {
  constexpr auto changes = std::to_array<std::int64_t>({-2, -2, -2, -1, -1, -1, 0, 0, 1, 1, 1, 2, 2, 2, 3});
  WorldState& world = game.world;
  world.totalCashAvailable -= checkupPrice(world);
  const std::int64_t change = RandomElement<std::int64_t>(game.random, changes);
  world.totalEnergyMax += change;
  world.annualCheckupTotal += change;
  const Bank lines = change < 0 ? bank::checkupWorse : change == 0 ? bank::checkupSame : bank::checkupBetter;
  std::string line = fill(drawFreshRow(game, lines), {{"change", tb::format("{:+}", change)}});
  logActivity(world, line);
  return {std::move(line), change};
}

// Which trait a roll of 0 to 99 raises; above the last row it raises none.
struct TraitBand {
  std::int64_t upTo;
  std::size_t trait;  // index in `traits`
};
constexpr std::array<TraitBand, 5> chances = {{{.upTo = 9, .trait = 0},
                                               {.upTo = 19, .trait = 1},
                                               {.upTo = 29, .trait = 2},
                                               {.upTo = 39, .trait = 3},
                                               {.upTo = 44, .trait = 4}}};

WeekEventResult tryForTalent(Game& game) {
  constexpr std::int64_t rolls = 100;
  constexpr std::int64_t highestTrait = 110;  // by chance; training ends at 100
  const TraitBand* const won = bandOf(chances, RandomRange(game.random, rolls));
  if (won == nullptr) {
    return {
        "You took a 50% shot at leveling up a talent trait (+1), but luck wasn’t on your side this time."};
  }
  const Trait& trait = traits[won->trait];
  if (game.world.*trait.points >= highestTrait) {
    return {tb::format("You have reached the maximum in {}.", spokenName(trait))};
  }
  game.world.*trait.points += 1;
  return {tb::format("You successfully raised your {} by +1 🎉", spokenName(trait)), 1};
}

WeekEventResult appearInPublic(Game& game) {
  constexpr auto gains = std::to_array<std::int64_t>({1, 1, 1, 1, 1, 2, 2, 2, 2, 3, 3, 3, 4, 4, 5, 6});
  const std::int64_t gain = RandomElement<std::int64_t>(game.random, gains);
  game.world.publicImage += gain;
  return {tb::format("{} Your public image has improved by +{}", drawFreshRow(game, bank::publicImage), gain),
          1};
}

WeekEventResult effectOf(Game& game, WeekEvent event) {
  switch (event) {
    case WeekEvent::localTheater:
      return playLocally(game);
    case WeekEvent::scriptReading:
      return earn(game, bank::scriptReading);
    case WeekEvent::sideHustle:
      return earn(game, bank::sideHustle);
    case WeekEvent::healthCheckup:
      return checkHealth(game);
    case WeekEvent::talentChance:
      return tryForTalent(game);
    case WeekEvent::publicImage:
      return appearInPublic(game);
    case WeekEvent::relationship:
      return isWithPartner(game.world, event) ? WeekEventResult{} : earn(game, bank::streetMime);
    default:
      return {};
  }
}

}  // namespace

std::vector<WeekEvent> drawWeekEvents(Game& game) {
  constexpr std::int64_t percent = 101;
  const int buttons = bandOf(counts, RandomRange(game.random, percent))->buttons;
  std::vector<WeekEvent> events;
  for (int button = 0; button < buttons; ++button) {
    const auto event = static_cast<WeekEvent>(RandomRange(game.random, std::ssize(terms)) + 1);
    if (event != WeekEvent::sharkBox) events.push_back(event);
  }
  return events;
}

std::string titleOf(const Game& game, WeekEvent event) {
  std::string title(termsOf(game.world, event).title);
  if (event == WeekEvent::healthCheckup) title += wholeMoney(game.locale, checkupPrice(game.world));
  return title;
}

std::int64_t energyFor(const WorldState& world, WeekEvent event) { return termsOf(world, event).energy; }

double checkupPrice(const WorldState& world) {
  constexpr std::int64_t pricePerPoint = 100;
  return static_cast<double>(std::max<std::int64_t>(overallTalent(world), 1) * pricePerPoint);
}

bool isWithPartner(const WorldState& world, WeekEvent event) {
  return event == WeekEvent::relationship && currentPartner(world) != nullptr;
}

PayRange sidePay(const WorldState& world) {
  constexpr double usual = 500;
  const double cash = world.totalCashAvailable;
  if (cash >= 0 && cash < 1'000) return {.least = 50, .most = 250};
  if (cash >= 10'000 && cash < 100'000) return {.least = 50, .most = 5'000};
  return {.least = 50, .most = usual};
}

Refusal weekEventRefusal(const WorldState& world, WeekEvent event) {
  if (event == WeekEvent::healthCheckup) {
    if (world.totalCashAvailable >= checkupPrice(world)) return {};
    return notEnoughCash(refusalWords(world, event));
  }
  if (world.totalEnergyAvailable >= energyFor(world, event)) return {};
  return Notice{
      .title = "Not Enough Energy", .message = refusalWords(world, event), .brief = tooLittleEnergy};
}

WeekEventResult useWeekEvent(Game& game, WeekEvent event) {
  game.world.totalEnergyAvailable -= energyFor(game.world, event);
  return effectOf(game, event);
}

}  // namespace tb
