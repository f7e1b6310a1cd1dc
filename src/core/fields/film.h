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
RECORD_RANGES(Film, {"filmId", uniqueId()}, {"typeOfFilm", oneOf(0, 4)}, {"isPrincipal", oneOf(0, 2)},
              {"imbdRating", between(0, 10)}, {"currentPopularity", between(-1'000, 1'000)},
              {"lastWeekPopularity", between(-1'000, 1'000)}, {"numImbdRatings", between(0, 1e11)},
              {"yearReleased", between(0, 100'000)}, {"weekReleased", between(-1e6, 1e6)},
              {"imbdMetascore", between(0, 100)}, {"myRating", between(0, 10)});

RECORD_FIELDS(BoxOffice, filmId, countryId, countryName, title, year, weekNumberForTracking, openingWeekend,
              totalGross, boxOfficeWeeklyEarnings, weeksTracked, numOfTheatres);
RECORD_RANGES(BoxOffice, {"weeksTracked", asLongAs("boxOfficeWeeklyEarnings")});

RECORD_FIELDS(Ratings, filmId, parentSeriesId, seasonNumber, title, year, weekNumberForTracking,
              premiereViews, hoursWatched, weeksTracked, adRates);
RECORD_RANGES(Ratings, {"premiereViews", {.least = 0, .most = 1e11, .fewest = 1}},
              {"adRates", between(0, 1'000)}, {"weeksTracked", asLongAs("hoursWatched")});

RECORD_FIELDS(MovieReview, title, review, rating, weekNumber, yearNumber, weekNumberForTracking);

RECORD_FIELDS(Quote, filmId, filmName, character, quote, question);

}  // namespace tb
