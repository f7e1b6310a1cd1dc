#pragma once

// Finished titles and what the world makes of them.

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "core/plain_types.h"

namespace tb {

// A project from the wrap on: the line in the filmography. New films go to the front of the list; none is
// ever removed.
struct Film {
  std::int64_t filmId = 0;
  std::string imageString;
  std::int64_t typeOfFilm = 0;  // filmType
  std::string role;
  std::int64_t isPrincipal = 0;  // rolePart
  std::string title;
  std::string movieDescription;
  std::vector<std::string> cast;  // the performer; names around it are made up where it is shown
  std::vector<std::string> genres;
  std::vector<std::string> featuredReviews;  // empty until release, then one text, which may be empty
  std::int64_t didWriteReview = 0;
  std::string characterName;
  std::string ageRating;              // "PG-13", "TV-MA", ...; empty for commercials, student and short films
  std::int64_t lengthMinutes = 0;     // 0 for a commercial
  std::int64_t numberOfEpisodes = 0;  // that the performer is in
  std::int64_t parentSeriesId = -1;   // filmId of the first instalment; -1 when there is none
  std::string directorName;
  std::string writerName;
  std::int64_t yearReleased = 0;  // yearNumber at the wrap
  std::int64_t yearsRunning = 0;
  std::int64_t weekReleased = 0;
  std::int64_t weekEnded = 0;
  double budget = 0;
  double boxOfficeGross = 0;  // 0 until the run closes
  // The four scores are 0 from the wrap to the release and never change afterwards.
  double imbdRating = 0;  // up to 10
  std::int64_t numImbdRatings = 0;
  std::int64_t imbdMetascore = 0;  // up to 100
  std::int64_t numMetascoreRatings = 0;
  double currentPopularity = 0;  // the hype until release, then live; at 0 it stays 0 but for syndication
  double lastWeekPopularity = 0;
  double payment = 0;
  double residualRate = 0;     // a fraction
  double royaltyRate = 0;      // in percent
  std::int64_t sourceId = 0;   // 0 for a submission of the performer's own, else the agent's id
  std::int64_t parentId = -1;  // the same as parentSeriesId
  std::int64_t seasonNumber = -1;
  std::int64_t sequelNumber = 0;  // 2 and up for the sequels of a feature film, else 0
  double myRating = 0;            // the player's, 1 to 10; 0 until rated
  std::int64_t didAct = 1;
  double equityPercentage = 0;  // in percent
  double equityDollarsInvested = 0;
  std::int64_t numOfTheatres = 4500;            // for every film
  std::int64_t franchise = -1;                  // movieNumber of the saga entry; -1 when none
  std::int64_t franchiseId = -1;                // id of the saga; -1 when none
  std::string debutNetwork;                     // series only
  std::string debutImageString;                 // the network's logo; series only
  std::optional<plist::Data> customPosterData;  // always absent: no rule makes a poster
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
  double totalGross = 0;                        // running, the opening included
  std::vector<double> boxOfficeWeeklyEarnings;  // one amount a week after the opening
  std::vector<std::int64_t> weeksTracked;       // the week of each amount
  std::int64_t numOfTheatres = -1;
  bool operator==(const BoxOffice&) const = default;
};

// The viewing history of a series' season; no review score.
struct Ratings {
  std::int64_t filmId = 0;
  std::int64_t parentSeriesId = -1;
  std::int64_t seasonNumber = 1;
  std::string title;
  std::int64_t year = 0;                   // yearNumber at the premiere
  std::int64_t weekNumberForTracking = 0;  // of the premiere
  std::vector<double> premiereViews;       // viewers of each aired episode, the premiere first
  std::vector<std::int64_t> hoursWatched;  // one entry an episode, then one a re-run boost
  std::vector<std::int64_t> weeksTracked;  // the week of each entry of hoursWatched
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

// A press line that the player gave in a promotion.
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
