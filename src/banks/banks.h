#pragma once

// The game's texts. A bank is a constant list of rows, from which one is drawn uniformly. The rows are in
// banks/*.txt. Each of these files has its own header, such as banks/film_banks.h, so a new bank recompiles
// only the users of its file. Sentences for the player are drawn with drawFreshRow() (banks/draw.h), other
// rows with drawRow().

#include <span>
#include <string>
#include <string_view>

#include "core/random.h"
#include "core/text.h"

namespace tb {

// A bank, identified by its name in the text files.
struct Bank {
  std::string_view name;
  bool operator==(const Bank&) const = default;
};

// A header lists BANK(name, number of rows, allowed placeholders) for each bank. This declares a constant for
// each, such as bank::premiere; the tests check the number of rows and the placeholders.
#define DECLARE_BANK(name, count, placeholders) inline constexpr Bank name{#name};
#define DECLARE_BANKS(list) \
  namespace tb::bank {      \
  list(DECLARE_BANK)        \
  }

// The rows of a bank in the order of its file, including the marks of banks/draw.h. The texts must be set
// (banks/texts.h).
[[nodiscard]] std::span<const std::string> rowsOf(Bank bank);

// A uniformly drawn row of the bank, such as a name. The same row can be drawn twice in a row.
[[nodiscard]] const std::string& drawRow(RandomSource& random, Bank bank);

}  // namespace tb
