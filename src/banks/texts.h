#pragma once

// The source of all banks' rows. Native programs embed the text files. The web page fetches them after its
// first paint and passes them in, because they are as large as everything else that it loads.

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace tb {

// All files of banks/*.txt, concatenated; valid until the program ends. In the web page: stops the game when
// they have not been set.
[[nodiscard]] std::string_view texts();

#ifdef __wasm__
// Sets the texts. Called once, before a row is drawn.
void setTexts(std::string texts);
#endif

// The rows of each bank by name; the names point into `texts`. "[name]" starts a bank, and every line after
// it is a row, with "\n" for a line break. Empty lines and lines that start with "#" are ignored.
using Banks = std::map<std::string_view, std::vector<std::string>>;
[[nodiscard]] Banks readBanks(std::string_view texts);

}  // namespace tb
