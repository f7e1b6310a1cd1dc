#pragma once

// Patron: subscriptions to the performer's film reviews.

#include "core/game.h"

namespace tb {

inline constexpr std::size_t patronReviews = 10;  // the fewest reviews with subscribers

// The fraction of readers who still pay: 1 in the week of the newest review, 0 after 200 weeks. 0 without a
// review.
[[nodiscard]] double patronInterest(const WorldState& world);

// The week's payment as it stands, in dollars; 0 with too few reviews.
[[nodiscard]] double patronSubscriptions(const WorldState& world);

// Returns the week's payment in dollars, up to 10,000. It grows with fans and fame and falls to 0 over the
// 200 weeks after the newest review. With fewer than 10 reviews it is 0 and nothing changes. Adds to
// `totalPatronEarnings` and `trackPatronEarnings`, adds a summary tile for a dollar or more, and logs the
// first payment. balanceWeek() adds the payment to the income.
double payPatron(Game& game);

}  // namespace tb
