#include "screens/chirp/chirp_parts.h"

#include "core/calendar.h"
#include "core/chirps.h"
#include "core/format.h"
#include "core/number_style.h"
#include "screens/headshot.h"

namespace tb {

using namespace view;

namespace {

constexpr double minute = 60;  // seconds
constexpr double hour = 60 * minute;
constexpr double day = 24 * hour;
constexpr double longestInDays = 3 * day;

Picture faceOf(const WorldState& world, const Chirp& chirp) {
  if (chirp.artistId == 0) return performerPicture(world);
  const bool isPerson = chirp.typeOfAccount != accountType::industry;
  return {.kind = isPerson ? PictureKind::avatar : PictureKind::logo, .name = chirp.imageString};
}

// The week of the year of a week that never wraps.
std::int64_t weekOfYear(std::int64_t week) { return week < 1 ? 1 : (week - 1) % weeksPerYear + 1; }

}  // namespace

std::string postedWhen(const Game& game, const Chirp& chirp) {
  const double age = game.clock().seconds - chirp.timestamp.seconds;
  if (age < minute) return "now";
  if (age < hour) return tb::format("{}m", static_cast<int>(age / minute));
  if (age < day) return tb::format("{}h", static_cast<int>(age / hour));
  if (age < longestInDays) return tb::format("{}d", static_cast<int>(age / day));
  return numericDate(weekOfYear(chirp.weekNumberForTracking), chirp.yearNumber);
}

Post postNode(const Game& game, const Chirp& chirp) {
  return {.note = chirp.isPinned == 1 ? "    Pinned Chirp" : "",
          .author = chirp.chirpName,
          .when = postedWhen(game, chirp),
          .text = chirp.message,
          .picture = {faceOf(game.world, chirp)},
          .comments = shortCount(chirp.commentCount),
          .reposts = shortCount(chirp.reChirpCount),
          .likes = shortCount(chirp.likeCount),
          .isVerified = chirp.typeOfAccount == accountType::industry,
          .mine = chirp.artistId == 0};
}

}  // namespace tb
