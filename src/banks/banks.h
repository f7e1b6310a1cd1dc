#pragma once

// The game's texts. A bank is a constant list of rows; which row comes is drawn, each with the same chance.
// The rows stand in banks/*.txt; banks/banks.def lists every bank with its count and the placeholders that
// its rows may hold. Rows that are told to the player are drawn with tellRow() (banks/draw.h), the others
// here.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "core/random.h"
#include "core/text.h"

namespace tb {

enum class Bank : std::uint8_t {
#define BANK(name, count, placeholders) name,
#include "banks/banks.def"
};

// The rows of a bank as they stand in its file, in its order: with the marks of banks/draw.h.
[[nodiscard]] std::span<const std::string> rowsOf(Bank bank);

// A row of the bank, drawn with RandomRange(its count): a name, a handle. It can come twice running.
[[nodiscard]] const std::string& drawRow(RandomSource& random, Bank bank);

}  // namespace tb
