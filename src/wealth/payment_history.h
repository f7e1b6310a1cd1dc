#pragma once

// All payments for titles in a career, merged from three lists of records.

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
  std::int64_t week;             // week of the year, 1 to 52, whose summary counted it
  double amount;                 // dollars added to the cash
  std::string_view source = {};  // "box office" or "syndication" of a royalty or a stake, else empty
};

// All payments, newest first. A record with a fee and a buyout gives two payments. Unpaid work is listed with
// 0, because the feed mentions it too.
[[nodiscard]] std::vector<Payment> paymentHistory(const WorldState& world);

struct YearOfPayments {
  std::int64_t year = 0;
  std::array<double, paymentKinds.size()> byKind{};  // dollars, in the order of paymentKinds

  [[nodiscard]] double of(PaymentKind kind) const { return byKind[static_cast<std::size_t>(kind)]; }
  [[nodiscard]] double total() const;
};

// Sums per year, oldest first, for every year with a payment and for the current year.
[[nodiscard]] std::vector<YearOfPayments> paymentsByYear(const WorldState& world);

}  // namespace tb
