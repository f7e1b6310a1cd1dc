#pragma once

// The game's texts. A bank is a constant list of rows; which row comes is drawn, each with the same chance.
// The rows stand in banks/*.txt. Each of these files has a header of its own, such as banks/film_banks.h,
// which lists its banks: a new bank concerns only those who draw from its file. Rows that are told to the
// player are drawn with tellRow() (banks/draw.h), the others here.

#include <span>
#include <string>
#include <string_view>

#include "core/random.h"
#include "core/text.h"

namespace tb {

// A bank by its name in the texts.
struct Bank {
  std::string_view name;
  bool operator==(const Bank&) const = default;
};

// A file's list holds BANK(name, number of rows, placeholders that its rows may hold) for each bank. This
// makes each of them a constant, such as bank::premiere; the tests hold the rows to the rest.
#define DECLARE_BANK(name, count, placeholders) inline constexpr Bank name{#name};
#define DECLARE_BANKS(list) \
  namespace tb::bank {      \
  list(DECLARE_BANK)        \
  }

// The rows of a bank as they stand in its file, in its order: with the marks of banks/draw.h.
// There have to be texts (banks/texts.h).
[[nodiscard]] std::span<const std::string> rowsOf(Bank bank);

// A row of the bank, drawn with RandomRange(its count): a name, a handle. It can come twice running.
[[nodiscard]] const std::string& drawRow(RandomSource& random, Bank bank);

}  // namespace tb
