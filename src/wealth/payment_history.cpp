#include "wealth/payment_history.h"

#include <map>
#include <numeric>
#include <utility>

#include "core/calendar.h"
#include "core/descending.h"
#include "core/find.h"
#include "film/film_record.h"

namespace tb {

namespace {

struct Dated {
  std::int64_t week;  // weekNumberForTracking
  Payment payment;
};

// A summary counts payments dated in the week after the summary's week.
std::int64_t summaryWeek(std::int64_t tracked) { return (tracked + weeksPerYear - 2) % weeksPerYear + 1; }

class History {
 public:
  void add(PaymentKind kind, const std::string& title, std::int64_t year, std::int64_t tracked, double amount,
           std::string_view source = {}) {
    payments_.push_back({tracked,
                         {.kind = kind,
                          .title = title,
                          .year = year,
                          .week = summaryWeek(tracked),
                          .amount = amount,
                          .source = source}});
  }

  std::vector<Payment> newestFirst() && {
    sortDescending(payments_, &Dated::week);
    std::vector<Payment> history;
    history.reserve(payments_.size());
    for (Dated& dated : payments_) history.push_back(std::move(dated.payment));
    return history;
  }

 private:
  std::vector<Dated> payments_;
};

// The title and the source of the money in each kind of record.
std::string titleOf(const WorldState&, const WeeklyEarnings& line) { return line.filmTitle; }
std::string titleOf(const WorldState&, const RoyaltyPayout& line) { return line.title; }
std::string titleOf(const WorldState& world, const EquityPayout& line) {
  const auto index = find(world.saveAllFilmList, &Film::filmId, line.filmId);
  return index ? world.saveAllFilmList[*index].title : "An investment";
}

std::string_view sourceOf(const WeeklyEarnings&) { return {}; }
std::string_view sourceOf(const auto& payout) {
  return payout.typeOfPayment == payoutSource::syndication ? "syndication" : "box office";
}

// Calls visit(kind, record, amount) for every payment.
template <class Visit>
void forEachPayment(const WorldState& world, Visit visit) {
  using enum PaymentKind;
  for (const WeeklyEarnings& line : world.saveAllWeeklyEarnings) {
    // A record is one kind of pay, or a fee with a buyout. Unpaid work is listed with 0.
    if (line.sessionEarned != 0 || (line.buyoutEarned == 0 && line.residualsEarned == 0)) {
      visit(session, line, line.sessionEarned);
    }
    if (line.buyoutEarned != 0) visit(buyout, line, line.buyoutEarned);
    if (line.residualsEarned != 0) visit(residual, line, line.residualsEarned);
  }
  for (const RoyaltyPayout& line : world.saveAllRoyaltyPayouts) visit(royalty, line, line.payout);
  for (const EquityPayout& line : world.saveAllEquityPayouts) visit(equity, line, line.payOut);
}

}  // namespace

std::vector<Payment> paymentHistory(const WorldState& world) {
  History history;
  forEachPayment(world, [&](PaymentKind kind, const auto& line, double amount) {
    history.add(kind, titleOf(world, line), line.yearNumber, line.weekNumberForTracking, amount,
                sourceOf(line));
  });
  return std::move(history).newestFirst();
}

double YearOfPayments::total() const { return std::accumulate(byKind.begin(), byKind.end(), 0.0); }

std::vector<YearOfPayments> paymentsByYear(const WorldState& world) {
  std::map<std::int64_t, YearOfPayments> years = {{world.yearNumber, {.year = world.yearNumber}}};
  forEachPayment(world, [&](PaymentKind kind, const auto& line, double amount) {
    YearOfPayments& sums = years[line.yearNumber];
    sums.year = line.yearNumber;
    sums.byKind[static_cast<std::size_t>(kind)] += amount;
  });
  std::vector<YearOfPayments> oldestFirst;
  for (const auto& [year, sums] : years) oldestFirst.push_back(sums);
  return oldestFirst;
}

}  // namespace tb
