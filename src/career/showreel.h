#pragma once

// The showreel that casting sees first. A new reel replaces the old one, so its score, in points, can fall.
// It is cut from footage of finished work, or from scenes shot for it.

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// What a production company offers.
struct ScenePackage {
  std::string_view title;
  std::size_t scenes;  // as many as it holds
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
inline constexpr std::size_t mostFootage = 3;   // scenes in a reel

// Where in `saveAllAuditionList` the footage stands that a reel can be cut from: the performer's wrapped
// work.
[[nodiscard]] std::vector<std::size_t> allPerformanceFootage(const WorldState& world);

// Reads the showreel's keys back when its screen opens; every scene then has its score.
void openShowreel(Game& game);

// Refuses one more scene than a package (0 to 2) holds, with `scenes` of them written already.
Refusal roomForScene(std::size_t packageIndex, std::size_t scenes);

// Adds a scene to the chosen footage, or takes it out again. Refuses a fourth.
Refusal chooseFootage(std::vector<std::int64_t>& filmIds, std::int64_t filmId);

// The score of a reel cut from the footage with these film ids, as it would come out today. Another cut comes
// out differently.
[[nodiscard]] std::int64_t previewFootageReel(Game& game, std::span<const std::int64_t> filmIds);

// The score that a reel of the best footage would come out with, by an average cut; 0 without any footage.
[[nodiscard]] std::int64_t likelyFootageScore(const WorldState& world);

// Why a reel of that price, in dollars, cannot be paid for now.
[[nodiscard]] Refusal reelRefusal(const WorldState& world, double cost);

// Pays for the reel that was previewed at `tempScore` and takes that score. Refuses without a choice or
// without the cash. Writes cash, score and log.
Refusal buildShowreelFromFootage(Game& game, std::span<const std::int64_t> filmIds, std::int64_t tempScore);

// Has the scenes of a package (0 to 2) shot: one description each. When footage is chosen too, the reel is
// rated by the footage in their place. Refuses more scenes than the package holds, none at all, and without
// the cash. Writes cash, score, scenes and log.
Refusal produceShowreelScenes(Game& game, std::size_t packageIndex,
                              std::span<const std::string> sceneDescriptions,
                              std::span<const std::int64_t> footageFilmIds);

}  // namespace tb
