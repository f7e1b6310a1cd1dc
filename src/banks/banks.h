#pragma once

// The game's texts. A bank is a constant list of rows; which row comes is drawn, each with the same chance,
// and a row can come twice running. The rows stand in banks/*.txt; banks/banks.def lists every bank with its
// count and the placeholders that its rows may hold.

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

// The rows of a bank, in the order of its file.
[[nodiscard]] std::span<const std::string> rowsOf(Bank bank);

// A row of the bank, drawn with RandomRange(its count).
[[nodiscard]] const std::string& drawRow(RandomSource& random, Bank bank);

}  // namespace tb
