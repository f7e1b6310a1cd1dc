#pragma once

// The fields of the records in core/records/charts.h, for the save file.

#include "core/record_fields.h"
#include "core/records/charts.h"

namespace tb {

RECORD_FIELDS(TopTen, filmId, title, director, totalViews, totalWeeklyViews, duration, rankLastWeek,
              rankThisWeek, weeksOnChart, peakPosition, yearDebut, weekNumber, weeksAtOne, longestWeekOnChart,
              currentPopularity, lastWeekPopularity, imageString, description);

RECORD_FIELDS(Syndication, filmId, filmName, filmType, filmReleased, networkNames, networkOffers,
              networkYears, networkImages, didAcceptOffer, networkIndexWon, weekOfFirstOffer, weekStarted,
              weeksRemaining, totalEarnings, networkNameSigned, networkOfferSigned, networkYearSigned,
              payment, residualRate, royaltyRate, sourceId);
RECORD_COLUMNS(Syndication, weeksRemaining);

RECORD_FIELDS(Award, id, awardOptionId, filmId, filmType, filmTitle, seasonNumber, nameOfAward, awardShow,
              yearAwarded, name, isWinner, otherNomineeNames, otherNomineeFilm, description);

}  // namespace tb
