#pragma once

// Chooses the title of a new project.

#include <span>
#include <string_view>
#include <unordered_set>

#include "core/game.h"
#include "film/catalogue.h"

namespace tb {

// Titles that the performer has made or is booked for.
using MadeTitles = std::unordered_set<std::string_view>;
[[nodiscard]] MadeTitles madeTitles(const WorldState& world);  // valid until the lists of projects change

// Returns `drawn`, which was drawn from `table`, if the performer has not made it; else the next title of its
// type (wrapping around) that is neither made nor `taken`; else `drawn` again.
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
