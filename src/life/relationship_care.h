#pragma once

// What the player can do with the partner: care for the relationship, ask for money, try for a baby. Every
// function needs a partner.

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/notice.h"
#include "life/separation.h"

namespace tb {

inline constexpr std::int64_t workEnergy = 10;  // points
inline constexpr std::int64_t metflixEnergy = 15;
inline constexpr std::int64_t babyEnergy = 20;
inline constexpr std::int64_t mostChildren = 4;

// What care came to.
struct Care {
  Refusal refusal;
  double points = 0;  // added to the meter before its limit
};

[[nodiscard]] Refusal workRefusal(const WorldState& world);
[[nodiscard]] Care workOnRelationship(Game& game);

// A film night needs the Metflix subscription.
[[nodiscard]] Refusal metflixRefusal(const WorldState& world);
[[nodiscard]] Care metflixWith(Game& game);

[[nodiscard]] Refusal moneyRefusal(const WorldState& world);

// Asks the partner for a tenth to three tenths of a week's income. Two times in three it hurts the
// relationship, and can end it. The energy it takes rises by 5 each time, up to 30.
struct MoneyAnswer {
  Refusal refusal;
  double amount = 0;  // dollars received
  std::string reply;  // the partner's, when there is money
  std::optional<Separation> separation;
};
[[nodiscard]] MoneyAnswer askForMoney(Game& game);

// Whether the couple can try for a baby at all: married, not pregnant, with fewer than 4 children.
[[nodiscard]] bool canTryForBaby(const WorldState& world);
[[nodiscard]] Refusal babyRefusal(const WorldState& world);

// Tries for a baby; a try in four succeeds, and the child comes 39 weekly steps later. `isOnTheWay` says so.
struct BabyTry {
  Refusal refusal;
  bool isOnTheWay = false;
};
[[nodiscard]] BabyTry tryForBaby(Game& game);

}  // namespace tb
