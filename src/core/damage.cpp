#include "core/damage.h"

#include <algorithm>
#include <string_view>

#include "core/format.h"

namespace tb {

namespace {

// What the elements of a list are to the player.
struct Noun {
  std::string_view key;
  std::string_view one;
  std::string_view many;
};

constexpr Noun nouns[] = {
    {"activityTracker", "line of the log", "lines of the log"},
    {"saveAllAuditionList", "project", "projects"},
    {"saveAllCompletedClasses", "class", "classes"},
    {"saveAllTalentAgents", "agent", "agents"},
    {"saveAllFilmList", "film", "films"},
    {"saveAllBoxOfficeList", "box-office run", "box-office runs"},
    {"saveAllRatings", "season's viewers", "seasons' viewers"},
    {"saveAllMovieReviews", "review of yours", "reviews of yours"},
    {"saveAllQuotes", "quote", "quotes"},
    {"saveAllWeeklyEarnings", "week's pay", "weeks' pay"},
    {"saveAllRoyaltyPayouts", "royalty", "royalties"},
    {"saveAllEquityPayouts", "payout of a stake", "payouts of stakes"},
    {"saveAllTopTenList", "film on the chart", "films on the chart"},
    {"saveAllTopTenSeriesList", "series on the chart", "series on the chart"},
    {"saveAllSyndication", "syndication deal", "syndication deals"},
    {"saveAllMovieAwards", "award", "awards"},
    {"saveAllChirpList", "chirp", "chirps"},
    {"saveAllEmailList", "e-mail", "e-mails"},
    {"saveAllMatchesList", "match", "matches"},
    {"saveAllWeeklyLineItems", "weekly item", "weekly items"},
    {"saveAllPropertyList", "home", "homes"},
    {"saveAllTransportationOwnedList", "vehicle", "vehicles"},
    {"saveAllMyCards", "card", "cards"},
    {"saveAllTransactionList", "card sale", "card sales"},
    {"saveSharkBoxDeals", "venture", "ventures"},
    {"saveAllEmployeeList", "executive", "executives"},
};

std::string counted(std::size_t count, const Variable& variable) {
  const auto noun = std::ranges::find(nouns, variable.key, &Noun::key);
  if (noun != std::end(nouns)) return tb::format("{} {}", count, count == 1 ? noun->one : noun->many);
  return tb::format("{} {} of {}", count, count == 1 ? "entry" : "entries", variable.key);
}

std::string whole(const Variable& variable) {
  const auto noun = std::ranges::find(nouns, variable.key, &Noun::key);
  return noun == std::end(nouns) ? std::string(variable.key) : tb::format("all {}", noun->many);
}

std::string unread(const Damage& damage) {
  if (damage.isWhole) return whole(*damage.variable);
  if (damage.lost == 0) return "";
  return (damage.isAtMost ? "up to " : "") + counted(damage.lost, *damage.variable);
}

std::string leftOut(const Damage& damage) {
  return damage.impossible == 0 ? "" : counted(damage.impossible, *damage.variable);
}

std::string mended(const Damage& damage) {
  if (damage.mended == 0) return "";
  if (!damage.variable->isList) return std::string(damage.variable->key);
  return tb::format("{} in {}", damage.mended, damage.variable->key);
}

std::string outdated(const Damage& damage) {
  return damage.columns == 0 ? "" : std::string(damage.variable->key);
}

// "Heading: a, b, c." with what `part` says of each damage; empty if it says nothing.
std::string line(std::string_view heading, std::span<const Damage> damages,
                 std::string (*part)(const Damage& damage)) {
  std::string parts;
  for (const Damage& damage : damages) {
    const std::string text = part(damage);
    if (!text.empty()) parts += (parts.empty() ? "" : ", ") + text;
  }
  return parts.empty() ? "" : tb::format("{}: {}.\n", heading, parts);
}

}  // namespace

std::optional<std::string> describe(std::span<const Damage> damages) {
  std::string text = line("Could not be read", damages, unread) +
                     line("Left out, of an unknown kind or there twice", damages, leftOut) +
                     line("Fell back to earlier figures", damages, outdated) +
                     line("Changed to the nearest possible value", damages, mended);
  if (text.empty()) return std::nullopt;
  text.pop_back();
  return text;
}

}  // namespace tb
