#pragma once

// What the review makes of news: what outranks what, what is stamped on it, what folds away, and what is a
// moment. It all stands in one table.

#include <span>
#include <string_view>

#include "core/news.h"
#include "core/world_state.h"

namespace tb {

enum class NewsMood : std::uint8_t { good, promising, plain, bad, quiet };

// When news is a moment, which gets a scene of its own.
enum class Occasion : std::uint8_t {
  never,
  firstOrLarge,  // the first of its kind in the career; a lead that is won; a title with the player in front
  always,
};

struct NewsRule {
  NewsKind kind;
  std::string_view stamp;  // a word or two in capitals
  NewsMood mood = NewsMood::plain;
  bool leads = true;   // can be the headline
  bool folds = false;  // several of a week share one row
  Occasion moment = Occasion::never;
};

// One rule a kind; what stands higher outranks what stands lower.
[[nodiscard]] std::span<const NewsRule> newsRules();
[[nodiscard]] const NewsRule& newsRule(NewsKind kind);

// True for news that gets a scene. `week` is all the news of the week, the item itself included: what came in
// the same week was not there before.
[[nodiscard]] bool isMoment(const WorldState& world, const News& item, std::span<const News> week);

// The place in `week` of what makes the headline: a moment before anything else, then by rank, by amount and
// by order. The size of `week` when nothing in it leads.
[[nodiscard]] std::size_t headlineOf(const WorldState& world, std::span<const News> week);

}  // namespace tb
