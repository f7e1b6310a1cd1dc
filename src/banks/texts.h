#pragma once

// Where the rows of all banks come from. A native program holds them. The page fetches them after it has
// drawn the first page and hands them in once: they are as large as everything else that it fetches.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tb {

// Every file of banks/*.txt, one after the other. They last as long as the program. In the page: stops the
// game when they have not been handed in.
[[nodiscard]] std::string_view texts();

#ifdef __wasm__
// Once, and before anything is drawn from a bank.
void handInTexts(std::string texts);
#endif

// The rows of each bank by its name, which is a part of `texts`. "[name]" begins a bank, every line after it
// is a row with "\n" for a line break, and empty lines and "#" comments say nothing.
using Banks = std::map<std::string_view, std::vector<std::string>>;
[[nodiscard]] Banks readBanks(std::string_view texts);

}  // namespace tb
