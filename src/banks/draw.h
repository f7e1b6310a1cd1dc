#pragma once

// Draws sentences for the player: log lines, reviews, questions. A row that was shown recently is not shown
// again, and a row is shown only when it is true. Names, handles and tables are drawn with drawRow() or by
// their own rules instead.
//
// A row can start with marks that say when it is true:
//
//   @agent   the performer has signed with an agent
//   @set     the performer has wrapped a part
//   @fame    the performer has fans to speak of
//   @job     the performer holds a temp job
//   @booked  the project that the row is about has been booked
//
// A row that names the performer ({name}) is about an actor on screen, so it needs a principal part.

#include <cstdint>
#include <string_view>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

// The conditions of the project that a row is about.
struct Subject {
  bool isPrincipal = true;  // the performer acts in a principal part
  bool isBooked = false;
};

[[nodiscard]] Subject subjectOf(const Audition& project);
[[nodiscard]] Subject subjectOf(const Film& film);

// A row without its marks, and its conditions.
struct MarkedRow {
  std::string_view text;
  std::uint8_t needs = 0;  // 0: always true
};
[[nodiscard]] MarkedRow markedRow(std::string_view row);

// Draws a row to show, without its marks. The row is drawn with RandomRange(number of rows). If it is not
// true or was shown recently, the next suitable row replaces it (wrapping around at the end). Recent are the
// last half of the bank's rows shown, at most 20. If all true rows are recent, the one shown longest ago is
// used.
[[nodiscard]] std::string_view drawFreshRow(Game& game, Bank bank, const Subject& subject = {});

}  // namespace tb
