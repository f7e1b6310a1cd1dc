#pragma once

// Finished titles, their box office, ratings and reviews.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/plain_types.h"

namespace tb {

// A project from the wrap on: an entry of the filmography. New films go to the front of the list; none is
// ever removed.
struct Film {
  std::int64_t filmId = 0;
  std::string imageString;
  std::int64_t typeOfFilm = 0;  // filmType
  std::string role;
  std::int64_t isPrincipal = 0;  // rolePart
  std::string title;
  std::string movieDescription;
  std::vector<std::string> cast;  // the performer; film/cast_list.h adds the other names
  std::vector<std::string> genres;
  std::vector<std::string>
      featuredReviews;  // empty until release, then one text, which can be an empty string
  std::int64_t didWriteReview = 0;
  std::string characterName;
  std::string ageRating;              // "PG-13", "TV-MA", ...; empty for commercials, student and short films
  std::int64_t lengthMinutes = 0;     // 0 for a commercial
  std::int64_t numberOfEpisodes = 0;  // with the performer
  std::int64_t parentSeriesId = -1;   // filmId of the first instalment; -1 when there is none
  std::string directorName;
  std::string writerName;
  std::int64_t yearReleased = 0;  // yearNumber of the wrap
  std::int64_t yearsRunning = 0;
  std::int64_t weekReleased = 0;
  std::int64_t weekEnded = 0;
  double budget = 0;
  double boxOfficeGross = 0;  // dollars; 0 until the run closes
  // The four scores are 0 until the release and never change after it.
  double imbdRating = 0;  // up to 10
  std::int64_t numImbdRatings = 0;
  std::int64_t imbdMetascore = 0;  // up to 100
  std::int64_t numMetascoreRatings = 0;
  double currentPopularity = 0;  // the hype until release; at 0 only syndication raises it again
  double lastWeekPopularity = 0;
  double payment = 0;
  double residualRate = 0;     // a fraction
  double royaltyRate = 0;      // percent
  std::int64_t sourceId = 0;   // the agent's id; 0 for the performer's own submission
  std::int64_t parentId = -1;  // the same as parentSeriesId
  std::int64_t seasonNumber = -1;
  std::int64_t sequelNumber = 0;  // 2 and up for the sequels of a feature film, else 0
  double myRating = 0;            // the player's own, 1 to 10; 0 until rated
  std::int64_t didAct = 1;
  double equityPercentage = 0;  // percent
  double equityDollarsInvested = 0;
  std::int64_t numOfTheatres = 4500;            // the same for every film
  std::int64_t franchise = -1;                  // movieNumber of the saga entry; -1 when none
  std::int64_t franchiseId = -1;                // id of the saga; -1 when none
  std::string debutNetwork;                     // series only
  std::string debutImageString;                 // the network's logo; series only
  std::optional<plist::Data> customPosterData;  // always absent: no rule sets it
  bool operator==(const Film&) const = default;
};

// A feature film's run in one market.
struct BoxOffice {
  std::int64_t filmId = 0;
  std::int64_t countryId = 0;  // 0 is "Domestic"
  std::string countryName;
  std::string title;
  std::int64_t year = 0;                   // yearNumber at release
  std::int64_t weekNumberForTracking = 0;  // of the release
  double openingWeekend = 0;
  double totalGross = 0;                        // so far, including the opening
  std::vector<double> boxOfficeWeeklyEarnings;  // one amount per week after the opening
  std::vector<std::int64_t> weeksTracked;       // parallel to boxOfficeWeeklyEarnings
  std::int64_t numOfTheatres = -1;
  bool operator==(const BoxOffice&) const = default;
};

// The viewing figures of a season. (Review scores are in Film.)
struct Ratings {
  std::int64_t filmId = 0;
  std::int64_t parentSeriesId = -1;
  std::int64_t seasonNumber = 1;
  std::string title;
  std::int64_t year = 0;                   // yearNumber at the premiere
  std::int64_t weekNumberForTracking = 0;  // of the premiere
  std::vector<double> premiereViews;       // viewers per aired episode, starting with the premiere
  std::vector<std::int64_t> hoursWatched;  // one entry per episode, then one per rerun boost
  std::vector<std::int64_t> weeksTracked;  // parallel to hoursWatched
  double adRates = 0;
  bool operator==(const Ratings&) const = default;
};

// A review that the player wrote. Newest first.
struct MovieReview {
  std::string title;
  std::string review;
  std::int64_t rating = 0;      // 1 to 10 stars
  std::int64_t weekNumber = 0;  // week of the year
  std::int64_t yearNumber = 0;
  std::int64_t weekNumberForTracking = 0;
  bool operator==(const MovieReview&) const = default;
};

// What the player said in a promotion interview.
struct Quote {
  std::int64_t filmId = 0;
  std::string filmName;
  std::string character;
  std::string quote;
  std::string question;
  bool operator==(const Quote&) const = default;
};

// A critic's card on the new-release screen. In memory only.
struct MetReview {
  std::int64_t id = 0;
  std::string filmTitle;
  std::int64_t score = 0;  // the title's metascore
  std::string reviewString;
  std::string reviewerName;
  std::string reviewerCompany;
  std::string starString;  // one to five "★"
  std::string filmType;    // "TV" or "Movie"
  std::string description;
  std::string imageString;
  std::int64_t season = 0;
  bool operator==(const MetReview&) const = default;
};

}  // namespace tb
