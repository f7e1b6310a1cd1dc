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

std::string_view sourceOf(std::int64_t typeOfPayment) {
  return typeOfPayment == payoutSource::syndication ? "syndication" : "box office";
}

std::string titleOf(const WorldState& world, std::int64_t filmId) {
  const auto index = find(world.saveAllFilmList, &Film::filmId, filmId);
  return index ? world.saveAllFilmList[*index].title : "An investment";
}

}  // namespace

std::vector<Payment> paymentHistory(const WorldState& world) {
  using enum PaymentKind;
  History history;
  for (const WeeklyEarnings& line : world.saveAllWeeklyEarnings) {
    const std::int64_t week = line.weekNumberForTracking;
    const auto add = [&](PaymentKind kind, double amount) {
      history.add(kind, line.filmTitle, line.yearNumber, week, amount);
    };
    // A record is one kind of pay, or a fee with a buyout. Unpaid work is listed with 0.
    if (line.sessionEarned != 0 || (line.buyoutEarned == 0 && line.residualsEarned == 0)) {
      add(session, line.sessionEarned);
    }
    if (line.buyoutEarned != 0) add(buyout, line.buyoutEarned);
    if (line.residualsEarned != 0) add(residual, line.residualsEarned);
  }
  for (const RoyaltyPayout& line : world.saveAllRoyaltyPayouts) {
    history.add(royalty, line.title, line.yearNumber, line.weekNumberForTracking, line.payout,
                sourceOf(line.typeOfPayment));
  }
  for (const EquityPayout& line : world.saveAllEquityPayouts) {
    history.add(equity, titleOf(world, line.filmId), line.yearNumber, line.weekNumberForTracking, line.payOut,
                sourceOf(line.typeOfPayment));
  }
  return std::move(history).newestFirst();
}

double YearOfPayments::total() const { return std::accumulate(byKind.begin(), byKind.end(), 0.0); }

std::vector<YearOfPayments> paymentsByYear(const std::vector<Payment>& history, std::int64_t thisYear) {
  std::map<std::int64_t, YearOfPayments> years = {{thisYear, {.year = thisYear}}};
  for (const Payment& payment : history) {
    YearOfPayments& sums = years[payment.year];
    sums.year = payment.year;
    sums.byKind[static_cast<std::size_t>(payment.kind)] += payment.amount;
  }
  std::vector<YearOfPayments> oldestFirst;
  for (const auto& [year, sums] : years) oldestFirst.push_back(sums);
  return oldestFirst;
}

}  // namespace tb
