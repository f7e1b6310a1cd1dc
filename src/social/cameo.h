#pragma once

// The Cameo: short personal videos that fans pay for.

#include <cstdint>

#include "core/game.h"

namespace tb {

inline constexpr std::int64_t cameoFans = 10'000;  // the fewest fans with sales

// Whether the business was opened: it is a weekly option.
[[nodiscard]] bool isCameoOpen(const WorldState& world);

// The price in dollars that fans think is fair at a fame level: 10 to 200.
[[nodiscard]] double fairCameoPrice(std::int64_t level);

// The demand at a price: 1 at the fair price, up to 1.5 below it, down to 0.01 above it. `fair` is above 0.
[[nodiscard]] double cameoDemand(double price, double fair);

// The most videos that can be sold in a week at that demand with these fans.
[[nodiscard]] std::int64_t mostCameoSales(std::int64_t fans, double demand);

// Sets `setCameoPrice` in dollars, and `cameoDemandIndex`.
void setPrice(Game& game, double price);

// Sells the week's videos: appends a record to `saveAllCameos`, raises `numberOfCameoReviews` by a tenth of
// the sales, and adds a tile to the summary. balanceWeek() adds the money to the income. Does nothing while
// the business is closed or with fewer than `cameoFans` fans.
void cameoWeekStep(Game& game);

}  // namespace tb
