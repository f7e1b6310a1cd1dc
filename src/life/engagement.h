#pragma once

// From dating to marriage: when a partner is ready, the rings and the weddings.

#include <array>
#include <cstdint>
#include <string_view>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// Something to buy for the next step; prices are dollars at a market index of 1.
struct Ceremony {
  std::string_view description;
  double price;
};

inline constexpr std::array<Ceremony, 9> rings = {{
    {.description = " • Oval Solitaire (0.25 Carat)", .price = 2'500},
    {.description = " • Pear Cut (0.5 Carat)", .price = 4'000},
    {.description = " • Trilliant Cut (1 Carat)", .price = 7'000},
    {.description = " • Princess Cut (1.25 Carat)", .price = 10'000},
    {.description = " • Marquise Cut (1.5 Carat)", .price = 15'000},
    {.description = " • Cushion Cut (3 Carat)", .price = 45'000},
    {.description = " • Emerald Cut (6 Carat)", .price = 300'000},
    {.description = " • Asscher Cut (9 Carat)", .price = 1'200'000},
    {.description = " • Round Brilliant (14 Carat)", .price = 10'000'000},
}};

inline constexpr std::array<Ceremony, 5> weddings = {{
    {.description = " • A heartfelt day on a humble budget", .price = 5'000},
    {.description = " • Elegant simplicity with thoughtful touches", .price = 25'000},
    {.description = " • Refined style and elevated celebration", .price = 100'000},
    {.description = " • A lavish experience in every detail", .price = 1'000'000},
    {.description = " • An unforgettable no-limit masterpiece", .price = 5'000'000},
}};

// A description without its bullet.
[[nodiscard]] std::string nameOf(const Ceremony& ceremony);

// The picture files of a ring and of a wedding, by index.
[[nodiscard]] std::string ringImage(std::size_t index);
[[nodiscard]] std::string weddingImage(std::size_t index);

// Why the partner does not take the next step yet: after dating a proposal, after the engagement a wedding.
// There must be a partner who is not married.
[[nodiscard]] Refusal proposeGate(const WorldState& world);

// The week, as `weekNumberForTracking`, from which the partner takes the next step.
[[nodiscard]] std::int64_t readyWeek(const Matches& partner);

// The meter that the next step needs, in points.
[[nodiscard]] double readyMeter(const Matches& partner);

[[nodiscard]] Refusal ringRefusal(const WorldState& world, double price);

// Buys a ring at this price and proposes. Returns the partner's answer, or a refusal without the cash.
struct Proposal {
  Refusal refusal;
  Notice answer;
};
[[nodiscard]] Proposal buyRing(Game& game, std::size_t index, double price);

[[nodiscard]] Refusal weddingRefusal(const WorldState& world, double price);

// The question about the prenup. Compute the net worth before.
[[nodiscard]] Notice prenupQuestion(const Game& game);

// Pays for the wedding and marries, with or without a prenup. Refused without the cash.
[[nodiscard]] Refusal holdWedding(Game& game, std::size_t index, double price, bool prenup);

}  // namespace tb
