#pragma once

// The seven networks: a series starts on one of them, and they buy what has had its first run.

#include <array>
#include <string_view>

namespace tb {

inline constexpr std::array<std::string_view, 7> networks = {"Metflix",     "HPO Max", "Bisney",   "Fulu",
                                                             "Pryme Video", "Pear TV", "Panamount"};

// The logo of each, in step. The odd ending of one is that of the picture that it names.
inline constexpr std::array<std::string_view, 7> networkLogos = {
    "imbdMetflix.png",    "imbdHpoMax.png", "imbdBisney.ong",   "imbdFulu.png",
    "imbdPrymeVideo.png", "imbdPear.png",   "imbdPanamount.png"};

}  // namespace tb
