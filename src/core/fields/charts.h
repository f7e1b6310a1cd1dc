#pragma once

// The fields of the records in core/records/charts.h, for the save file.

#include "core/record_fields.h"
#include "core/records/charts.h"

namespace tb {

RECORD_FIELDS(TopTen, filmId, title, director, totalViews, totalWeeklyViews, duration, rankLastWeek,
              rankThisWeek, weeksOnChart, peakPosition, yearDebut, weekNumber, weeksAtOne, longestWeekOnChart,
              currentPopularity, lastWeekPopularity, imageString, description);
RECORD_RANGES(TopTen, {"currentPopularity", between(-10'000, 10'000)},
              {"lastWeekPopularity", between(-10'000, 10'000)});

RECORD_FIELDS(Syndication, filmId, filmName, filmType, filmReleased, networkNames, networkOffers,
              networkYears, networkImages, didAcceptOffer, networkIndexWon, weekOfFirstOffer, weekStarted,
              weeksRemaining, totalEarnings, networkNameSigned, networkOfferSigned, networkYearSigned,
              payment, residualRate, royaltyRate, sourceId);
RECORD_COLUMNS(Syndication, weeksRemaining);
RECORD_RANGES(Syndication, {"filmType", oneOf(0, 4)}, {"networkOffers", asLongAs("networkNames")},
              {"networkYears", asLongAs("networkNames")}, {"networkImages", asLongAs("networkNames")},
              {"networkOfferSigned", asLongAs("networkNameSigned")},
              {"networkYearSigned", asLongAs("networkNameSigned")});

RECORD_FIELDS(Award, id, awardOptionId, filmId, filmType, filmTitle, seasonNumber, nameOfAward, awardShow,
              yearAwarded, name, isWinner, otherNomineeNames, otherNomineeFilm, description);
RECORD_RANGES(Award, {"id", atLeast(0)}, {"awardOptionId", between(0, 13)}, {"isWinner", between(0, 1)},
              {"filmType", oneOf(0, 4)}, {"otherNomineeFilm", asLongAs("otherNomineeNames")});

}  // namespace tb
