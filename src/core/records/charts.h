#pragma once

// The afterlife of a title: the streaming chart, syndication, awards.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// A place on the weekly chart.
struct TopTen {
  static constexpr std::int64_t firstInventedId =
      5'000'000;                                // filmId from here on is no film of the player's
  static constexpr std::int64_t unplaced = 25;  // peakPosition of an entry that is new

  std::int64_t filmId = 0;
  std::string title;
  std::string director;
  std::int64_t totalViews = 0;
  std::int64_t totalWeeklyViews = 0;
  std::int64_t duration = 0;      // minutes
  std::int64_t rankLastWeek = 0;  // 0 when new
  std::int64_t rankThisWeek = 0;  // from 1; 0 until ranked
  std::int64_t weeksOnChart = 0;
  std::int64_t peakPosition = unplaced;
  std::int64_t yearDebut = 0;
  std::int64_t weekNumber = 0;  // the week of its entry
  std::int64_t weeksAtOne = 0;
  std::int64_t longestWeekOnChart = 0;
  double currentPopularity = 0;
  double lastWeekPopularity = 0;
  std::string imageString;
  std::string description;
  bool operator==(const TopTen&) const = default;
};

// A title's dealings with networks. The four lists of bids run in step; so do the three of finished deals.
struct Syndication {
  std::int64_t filmId = 0;
  std::string filmName;
  std::int64_t filmType = 0;      // tb::filmType
  std::int64_t filmReleased = 0;  // week of release
  std::vector<std::string> networkNames;
  std::vector<std::int64_t> networkOffers;  // dollars
  std::vector<std::int64_t> networkYears;
  std::vector<std::string> networkImages;
  bool didAcceptOffer = false;        // a deal is in force
  std::int64_t networkIndexWon = -1;  // place in the bids; -1 when none
  std::int64_t weekOfFirstOffer = 0;
  std::int64_t weekStarted = 0;  // 0 while no deal is in force
  std::int64_t weeksRemaining = 0;
  std::int64_t totalEarnings = 0;  // dollars, sum of the deals won
  std::vector<std::string> networkNameSigned;
  std::vector<std::int64_t> networkOfferSigned;
  std::vector<std::int64_t> networkYearSigned;
  double payment = 0;  // this and the next three are the film's
  double residualRate = 0;
  double royaltyRate = 0;
  std::int64_t sourceId = 0;
  bool operator==(const Syndication&) const = default;
};

// A nomination, its outcome already settled.
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
  std::string name;              // who is nominated
  std::int64_t isWinner = 0;
  std::vector<std::string> otherNomineeNames;  // three
  std::vector<std::string> otherNomineeFilm;   // their titles
  std::string description;
  bool operator==(const Award&) const = default;
};

}  // namespace tb
