#pragma once

// Choosing the title of a new project.

#include <span>
#include <string_view>
#include <unordered_set>

#include "core/game.h"
#include "film/catalogue.h"

namespace tb {

// The titles that the performer has made, or has been booked to make.
using MadeTitles = std::unordered_set<std::string_view>;
[[nodiscard]] MadeTitles madeTitles(const WorldState& world);  // good until the lists of projects change

// The title for a project for which `drawn` was drawn from `table`: itself, or, when it was made already, the
// next of its type in the table (after the last one the first) that was not made and is not `taken`. With all
// of them made the drawn one comes again.
template <class IsTaken>
[[nodiscard]] const Movie& newTitle(std::span<const Movie> table, const Movie& drawn, const MadeTitles& made,
                                    IsTaken taken) {
  if (!made.contains(drawn.title)) return drawn;
  const auto first = static_cast<std::size_t>(&drawn - table.data());
  for (std::size_t step = 1; step < table.size(); ++step) {
    const Movie& next = table[(first + step) % table.size()];
    if (next.type == drawn.type && !made.contains(next.title) && !taken(next)) return next;
  }
  return drawn;
}

}  // namespace tb
