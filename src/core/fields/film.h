#pragma once

// The fields of the records in core/records/film.h, for the save file.

#include "core/record_fields.h"
#include "core/records/film.h"

namespace tb {

RECORD_FIELDS(Film, filmId, imageString, typeOfFilm, role, isPrincipal, title, movieDescription, cast, genres,
              featuredReviews, didWriteReview, characterName, ageRating, lengthMinutes, numberOfEpisodes,
              parentSeriesId, directorName, writerName, yearReleased, yearsRunning, weekReleased, weekEnded,
              budget, boxOfficeGross, imbdRating, numImbdRatings, imbdMetascore, numMetascoreRatings,
              currentPopularity, lastWeekPopularity, payment, residualRate, royaltyRate, sourceId, parentId,
              seasonNumber, sequelNumber, myRating, didAct, equityPercentage, equityDollarsInvested,
              numOfTheatres, franchise, franchiseId, debutNetwork, debutImageString, customPosterData);
RECORD_COLUMNS(Film, currentPopularity, lastWeekPopularity);

RECORD_FIELDS(BoxOffice, filmId, countryId, countryName, title, year, weekNumberForTracking, openingWeekend,
              totalGross, boxOfficeWeeklyEarnings, weeksTracked, numOfTheatres);

RECORD_FIELDS(Ratings, filmId, parentSeriesId, seasonNumber, title, year, weekNumberForTracking,
              premiereViews, hoursWatched, weeksTracked, adRates);

RECORD_FIELDS(MovieReview, title, review, rating, weekNumber, yearNumber, weekNumberForTracking);

RECORD_FIELDS(Quote, filmId, filmName, character, quote, question);

}  // namespace tb
