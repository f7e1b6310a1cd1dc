#pragma once

// What titles have paid over a career, as one story out of three kinds of records.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/world_state.h"

namespace tb {

enum class PaymentKind : std::uint8_t { session, buyout, residual, royalty, equity };

inline constexpr std::array<PaymentKind, 5> paymentKinds = {PaymentKind::session, PaymentKind::buyout,
                                                            PaymentKind::residual, PaymentKind::royalty,
                                                            PaymentKind::equity};

struct Payment {
  PaymentKind kind;
  std::string title;
  std::int64_t year;
  std::int64_t week;             // of the year, 1 to 52: the one whose summary counted it
  double amount;                 // dollars, as it reached the cash
  std::string_view source = {};  // "box office" or "syndication" of a royalty or a stake, else empty
};

// Every payment of titles, the newest first. A record of two amounts, such as a fee with its buyout, gives
// two payments. What paid nothing is listed with 0, so that nothing that the feed told of is missing.
[[nodiscard]] std::vector<Payment> paymentHistory(const WorldState& world);

struct YearOfPayments {
  std::int64_t year = 0;
  std::array<double, paymentKinds.size()> byKind{};  // dollars, in the order of paymentKinds

  [[nodiscard]] double of(PaymentKind kind) const { return byKind[static_cast<std::size_t>(kind)]; }
  [[nodiscard]] double total() const;
};

// The sums of all payments, one entry for every year with a payment and for the running one, the oldest first.
[[nodiscard]] std::vector<YearOfPayments> paymentsByYear(const WorldState& world);

}  // namespace tb
