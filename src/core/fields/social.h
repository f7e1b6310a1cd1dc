#pragma once

// The fields of the records in core/records/social.h, for the save file.

#include "core/record_fields.h"
#include "core/records/social.h"

namespace tb {

RECORD_FIELDS(Chirp, id, artistId, chirpName, message, isPinned, weekNumberForTracking, yearNumber,
              commentCount, reChirpCount, likeCount, news, imageString, typeOfAccount, timestamp,
              filmResponse, filmId);

RECORD_FIELDS(Email, id, typeOfDeal, title, message, connectingId, isAccepted, weekNumber, yearNumber,
              weekNumberForTracking);

RECORD_FIELDS(Cameos, weekNumberForTracking, yearNumber, numberOfPurchases, totalPriceEarned, averageRating);

}  // namespace tb
