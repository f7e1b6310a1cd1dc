#include "wealth/payment_history.h"

#include <gtest/gtest.h>

namespace tb {
namespace {

WorldState paidWorld() {
  WorldState world;
  world.saveAllFilmList = {{.filmId = 5, .title = "Salt Road"}};
  world.saveAllWeeklyEarnings = {
      {.filmTitle = "Fizz", .yearNumber = 2026, .weekNumberForTracking = 10},  // worked for nothing
      {.filmTitle = "Salt Road",
       .sessionEarned = 940,
       .buyoutEarned = 60,
       .yearNumber = 2026,
       .weekNumberForTracking = 53},
      {.filmTitle = "Fizz", .residualsEarned = 47, .yearNumber = 2028, .weekNumberForTracking = 107}};
  world.saveAllRoyaltyPayouts = {{.title = "Salt Road",
                                  .yearNumber = 2028,
                                  .weekNumberForTracking = 108,
                                  .payout = 200,
                                  .typeOfPayment = payoutSource::syndication}};
  world.saveAllEquityPayouts = {{.filmId = 5, .yearNumber = 2026, .weekNumberForTracking = 54, .payOut = -30},
                                {.filmId = 6, .yearNumber = 2028, .weekNumberForTracking = 107, .payOut = 1}};
  return world;
}

TEST(PaymentHistory, ListsPaymentsNewestFirst) {
  std::vector<std::string> told;
  for (const Payment& payment : paymentHistory(paidWorld())) {
    told.push_back(payment.title + " " + std::to_string(static_cast<int>(payment.kind)) + " " +
                   std::to_string(payment.year) + "/" + std::to_string(payment.week) + " " +
                   std::to_string(static_cast<int>(payment.amount)) + " " + std::string(payment.source));
  }
  EXPECT_EQ(told, (std::vector<std::string>{
                      "Salt Road 3 2028/3 200 syndication", "Fizz 2 2028/2 47 ",
                      "An investment 4 2028/2 1 box office",  // no film with that id
                      "Salt Road 4 2026/1 -30 box office",
                      "Salt Road 0 2026/52 940 ",  // counted in the previous week's summary
                      "Salt Road 1 2026/52 60 ",
                      "Fizz 0 2026/9 0 ",  // worked for nothing
                  }));
}

}  // namespace
}  // namespace tb
