#pragma once

// The table of news kinds for the weekly review: rank, stamp, whether lines fold, and whether it is a moment.

#include <span>
#include <string_view>

#include "core/news.h"
#include "core/world_state.h"

namespace tb {

enum class NewsMood : std::uint8_t { good, promising, plain, bad, quiet };

// When news is a moment, that is, gets a scene.
enum class Occasion : std::uint8_t {
  never,
  firstOrLarge,  // the first of its kind in the career; winning a lead; a title with the player as lead
  always,
};

struct NewsRule {
  NewsKind kind;
  std::string_view stamp;  // a word or two in capitals
  NewsMood mood = NewsMood::plain;
  bool leads = true;   // can be the headline
  bool folds = false;  // several in a week share a row
  Occasion moment = Occasion::never;
};

// One rule per kind, highest rank first.
[[nodiscard]] std::span<const NewsRule> newsRules();
[[nodiscard]] const NewsRule& newsRule(NewsKind kind);

// True for news that gets a scene. `week` is all news of the week including `item`; news of the same week
// does not count as earlier.
[[nodiscard]] bool isMoment(const WorldState& world, const News& item, std::span<const News> week);

// The index in `week` of the headline: moments first, then by rank, amount and order. The size of `week` when
// nothing can be the headline.
[[nodiscard]] std::size_t headlineOf(const WorldState& world, std::span<const News> week);

}  // namespace tb
