#pragma once

// Titles after their release: the streaming chart, syndication, awards.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// An entry of the weekly chart.
struct TopTen {
  static constexpr std::int64_t firstInventedId = 5'000'000;  // a filmId from here on is not the player's
  static constexpr std::int64_t unplaced = 25;                // peakPosition of a new entry

  std::int64_t filmId = 0;
  std::string title;
  std::string director;
  std::int64_t totalViews = 0;
  std::int64_t totalWeeklyViews = 0;
  std::int64_t duration = 0;      // minutes
  std::int64_t rankLastWeek = 0;  // 0 when new
  std::int64_t rankThisWeek = 0;  // 1 and up; 0 until ranked
  std::int64_t weeksOnChart = 0;
  std::int64_t peakPosition = unplaced;
  std::int64_t yearDebut = 0;
  std::int64_t weekNumber = 0;  // week of entry
  std::int64_t weeksAtOne = 0;
  std::int64_t longestWeekOnChart = 0;
  double currentPopularity = 0;
  double lastWeekPopularity = 0;
  std::string imageString;
  std::string description;
  bool operator==(const TopTen&) const = default;
};

// A title's bids and deals with networks. The four lists of bids are parallel; so are the three of finished
// deals.
struct Syndication {
  std::int64_t filmId = 0;
  std::string filmName;
  std::int64_t filmType = 0;      // tb::filmType
  std::int64_t filmReleased = 0;  // week of release
  std::vector<std::string> networkNames;
  std::vector<std::int64_t> networkOffers;  // dollars
  std::vector<std::int64_t> networkYears;
  std::vector<std::string> networkImages;
  bool didAcceptOffer = false;        // a deal is active
  std::int64_t networkIndexWon = -1;  // index in the bids; -1 when none
  std::int64_t weekOfFirstOffer = 0;
  std::int64_t weekStarted = 0;  // 0 while no deal is active
  std::int64_t weeksRemaining = 0;
  std::int64_t totalEarnings = 0;  // dollars, sum of the deals won
  std::vector<std::string> networkNameSigned;
  std::vector<std::int64_t> networkOfferSigned;
  std::vector<std::int64_t> networkYearSigned;
  double payment = 0;  // this and the next three are copied from the film
  double residualRate = 0;
  double royaltyRate = 0;
  std::int64_t sourceId = 0;
  bool operator==(const Syndication&) const = default;
};

// A nomination. Its outcome is decided when it is made.
struct Award {
  std::int64_t id = 0;
  std::int64_t awardOptionId = 0;  // row of the table of categories
  std::int64_t filmId = 0;
  std::int64_t filmType = 0;  // tb::filmType
  std::string filmTitle;
  std::int64_t seasonNumber = 0;  // for a series
  std::string nameOfAward;
  std::string awardShow;
  std::int64_t yearAwarded = 0;  // yearNumber of the nomination
  std::string name;              // of the nominee
  std::int64_t isWinner = 0;
  std::vector<std::string> otherNomineeNames;  // three
  std::vector<std::string> otherNomineeFilm;   // their titles
  std::string description;
  bool operator==(const Award&) const = default;
};

}  // namespace tb
