#pragma once

// Posts, e-mails and cameo sales.

#include <cstdint>
#include <string>

#include "core/plain_types.h"

namespace tb {

// A saved post: by the player, an official account or a partner. Posts of the crowd have the same struct and
// are never saved.
struct Chirp {
  std::int64_t id = 0;
  std::int64_t artistId = 0;  // 0 the player, -1 anyone else
  std::string chirpName;
  std::string message;
  std::int64_t isPinned = 0;
  std::int64_t weekNumberForTracking = 0;
  std::int64_t yearNumber = 0;
  std::int64_t commentCount = 0;
  std::int64_t reChirpCount = 0;
  std::int64_t likeCount = 0;
  std::int64_t news = 0;  // 0 the player, -1 the crowd
  std::string imageString;
  std::int64_t typeOfAccount = 0;  // 0 the player, 3 the partner, 5 a fan, 6 an industry account
  plist::Date timestamp;           // for the "hours ago" label
  std::int64_t filmResponse = -1;  // the kind of promotion it belongs to; -1 for none
  std::int64_t filmId = -1;        // the title that it is about; -1 for none
  bool operator==(const Chirp&) const = default;
};

// Values of Email::typeOfDeal.
namespace deal {
inline constexpr std::int64_t help = 0;  // the first e-mails of a career; the gift is recognized by its id
inline constexpr std::int64_t agent = 1;
inline constexpr std::int64_t investment = 2;
inline constexpr std::int64_t royalty = 3;
inline constexpr std::int64_t franchise = 4;
inline constexpr std::int64_t fundraise = 6;
inline constexpr std::int64_t buyout = 7;
inline constexpr std::int64_t sharkBox = 8;
inline constexpr std::int64_t message = 99;  // no deal: opening it does nothing more
}  // namespace deal

// In order of arrival; the inbox keeps the 20 most recent.
struct Email {
  static constexpr std::int64_t giftId = -100;

  std::int64_t id = 0;          // random; giftId for the free gift
  std::int64_t typeOfDeal = 0;  // deal
  std::string title;
  std::string message;
  std::int64_t connectingId = -1;  // id of the agent, venture or rival that it is about; -1 for none
  std::int64_t isAccepted = 0;
  std::int64_t weekNumber = 0;  // week of the year
  std::int64_t yearNumber = 0;
  std::int64_t weekNumberForTracking = 0;
  bool operator==(const Email&) const = default;
};

// One week of cameo sales.
struct Cameos {
  std::int64_t weekNumberForTracking = 0;
  std::int64_t yearNumber = 0;
  std::int64_t numberOfPurchases = 0;
  double totalPriceEarned = 0;
  double averageRating = 0;  // 4.5 to 5
  bool operator==(const Cameos&) const = default;
};

}  // namespace tb
