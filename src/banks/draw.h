#pragma once

// Drawing a row that is told to the player: a line of the log, a review, a question. A row just told is not
// told again, and a row is told only where it is true. Names, handles and tables are no such rows: they are
// drawn with drawRow() or by rules of their own.
//
// What a row needs to be true stands before it in its file, as one or more of these marks:
//
//   @agent   the performer has signed with an agent
//   @set     the performer has wrapped a part
//   @fame    the performer has fans to speak of
//   @job     the performer holds a temp job
//   @booked  the project that the row is about has been booked
//
// A row that names the performer ({name}) is about an actor who is seen: it needs a principal part.

#include <cstdint>
#include <string_view>

#include "banks/banks.h"
#include "core/game.h"

namespace tb {

// What is true of the project that a row is about.
struct Subject {
  bool isPrincipal = true;  // the performer acts in it, in a principal part
  bool isBooked = false;
};

[[nodiscard]] Subject subjectOf(const Audition& project);
[[nodiscard]] Subject subjectOf(const Film& film);

// A row of a bank without its marks, and what it needs.
struct MarkedRow {
  std::string_view text;
  std::uint8_t needs = 0;  // 0: it is true of everybody
};
[[nodiscard]] MarkedRow markedRow(std::string_view row);

// The row of a bank to be told, without its marks. One is drawn with RandomRange(its count); when it was told
// among the last half of the bank's rows (at most the last 20), or would not be true, the next row that can
// be told stands in, after the last one the first. When every row that is true was told so lately, it is the
// one told longest ago.
[[nodiscard]] std::string_view tellRow(Game& game, Bank bank, const Subject& subject = {});

}  // namespace tb
