#pragma once

// The seven networks, on which series start and which buy reruns.

#include <array>
#include <string_view>

namespace tb {

inline constexpr std::array<std::string_view, 7> networks = {"Metflix",     "HPO Max", "Bisney",   "Fulu",
                                                             "Pryme Video", "Pear TV", "Panamount"};

// The logo of each network, in the same order. One has an odd extension because its picture file does.
inline constexpr std::array<std::string_view, 7> networkLogos = {
    "imbdMetflix.png",    "imbdHpoMax.png", "imbdBisney.ong",   "imbdFulu.png",
    "imbdPrymeVideo.png", "imbdPear.png",   "imbdPanamount.png"};

}  // namespace tb
