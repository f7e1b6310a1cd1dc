#pragma once

// The showreel. A new reel replaces the old one, so its score (points) can go down. It is cut from footage of
// finished work or from new scenes.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// An offer of a production company.
struct ScenePackage {
  std::string_view title;
  std::size_t scenes;  // maximum number of scenes
  double cost;         // dollars
};

inline constexpr double sceneCost1 = 499;
inline constexpr double sceneCost2 = 699;
inline constexpr double sceneCost3 = 999;
inline constexpr std::array<ScenePackage, 3> scenePackages = {{
    {.title = "BASIC", .scenes = 1, .cost = sceneCost1},
    {.title = "CINEMATIC", .scenes = 2, .cost = sceneCost2},
    {.title = "SHOWCASE", .scenes = 3, .cost = sceneCost3},
}};

inline constexpr double footageReelCost = 399;  // dollars
inline constexpr std::size_t maxFootage = 3;    // clips in a reel

// Indexes in `saveAllAuditionList` of the footage for a reel: the performer's wrapped work.
[[nodiscard]] std::vector<std::size_t> allPerformanceFootage(const WorldState& world);

// Repairs the lists of scenes when the screen opens, so that every scene has a score.
void openShowreel(Game& game);

// Refuses another scene when a package (0 to 2) is full; `scenes` is the number of scenes so far.
Refusal roomForScene(std::size_t packageIndex, std::size_t scenes);

// Adds a clip to the chosen footage, or removes it if it is chosen. Refuses a fourth clip.
Refusal chooseFootage(std::vector<std::int64_t>& filmIds, std::int64_t filmId);

// Draws the score of a reel cut from the footage with these film ids. Each call draws a new cut.
[[nodiscard]] std::int64_t previewFootageReel(Game& game, std::span<const std::int64_t> filmIds);

// The expected score of a reel from the best footage with an average cut; 0 without footage.
[[nodiscard]] std::int64_t likelyFootageScore(const WorldState& world);

// Why a reel at that price (dollars) cannot be bought: not enough cash.
[[nodiscard]] Refusal reelRefusal(const WorldState& world, double cost);

// Buys the reel that was previewed with `tempScore` and sets the showreel score to it. Refused without chosen
// footage or without the cash.
Refusal buildShowreelFromFootage(Game& game, std::span<const std::int64_t> filmIds, std::int64_t tempScore);

// Buys a package (0 to 2) of new scenes, one description each. If footage is also chosen, the footage sets
// the score instead of the scenes. Refused with no scenes, with more than the package holds, or without the
// cash.
Refusal produceShowreelScenes(Game& game, std::size_t packageIndex,
                              std::span<const std::string> sceneDescriptions,
                              std::span<const std::int64_t> footageFilmIds);

}  // namespace tb
