#pragma once

// Work: projects in the casting funnel, classes, agents.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// Values of Audition::typeOfFilm and of the type field of other records.
namespace filmType {
inline constexpr std::int64_t feature = 0;
inline constexpr std::int64_t series = 1;
inline constexpr std::int64_t commercial = 2;
inline constexpr std::int64_t studentFilm = 3;
inline constexpr std::int64_t shortFilm = 4;
}  // namespace filmType

// Values of Audition::isPrincipal and Film::isPrincipal.
namespace rolePart {
inline constexpr std::int64_t background = 0;
inline constexpr std::int64_t principal = 1;
inline constexpr std::int64_t ownProduction = 2;  // the performer directs and produces
}  // namespace rolePart

// Values of Audition::funnelStage. A wrapped project stays wrapped; weekReleased says when it is released.
namespace funnel {
inline constexpr std::int64_t closed = -1;
inline constexpr std::int64_t submitted = 0;
inline constexpr std::int64_t invited = 1;
inline constexpr std::int64_t booked = 2;
inline constexpr std::int64_t wrapped = 3;
}  // namespace funnel

// A project that the performer acts in, directs or invests in, from submission on.
struct Audition {
  std::int64_t filmId = 0;       // shared with the Film, BoxOffice and Ratings of the project
  std::string imageString;       // poster image name
  std::int64_t typeOfFilm = 0;   // filmType
  std::int64_t isPrincipal = 0;  // rolePart
  std::int64_t isUnion = 0;
  std::string title;
  std::string description;
  std::string roleDescription;      // with the character's name filled in
  std::vector<std::string> genres;  // the first one selects the phrases of reviews
  std::string role;                 // "Lead", "Extra", ...
  std::string characterName;
  std::int64_t numberOfEpisodesActed = 0;  // 0 for anything but a series
  std::int64_t numberOfEpisodesTotal = 0;  // also the number of weeks on the air
  std::int64_t parentSeriesFilmId = -1;    // filmId of the first instalment; -1 when there is none
  std::int64_t isContinued = -1;           // -1: never renewed; 0: may be renewed; 1 or more: was renewed
  std::int64_t seasonNumber = -1;          // season or sequel; 1 for a first season, -1 for a single title
  std::int64_t submittedYear = 0;          // yearNumber at submission
  std::int64_t workYear = 0;               // calendar year of filming
  std::int64_t weekSubmitted = 0;
  std::int64_t weekAudition = 0;
  std::int64_t weekToWork = 0;  // the week in which filming ends
  std::int64_t weekReleased = 0;
  double payment = 0;   // session fee
  double buyout = 0;    // dollars, paid once with the fee
  double residual = 0;  // a fraction
  double royalty = 0;   // percent of the gross
  double budget = 0;
  std::string source;                // "The Backstage", or the agency's name
  std::int64_t sourceId = 0;         // the agent's id; 0 for the performer's own submission
  std::int64_t funnelStage = 0;      // funnel
  std::int64_t funnelStageSent = 0;  // always 0
  std::int64_t didBribe = 0;         // 0, or the bribe's strength 10 to 99
  double rehearsalRating = 0;        // audition score
  std::int64_t rehearsalBoostCount = 0;
  double performanceRating = 0;  // performance score, raised before the wrap
  std::int64_t performanceBoostCount = 0;
  std::int64_t promoteHypeCount = 0;  // 1 once promoted; there is one promotion per project
  double hypeRating = 0;              // anticipation; scales the opening
  double auditionDifficulty = 0;
  std::int64_t directorRating = 0;  // determines the project's reviews
  std::string directorName;
  std::string writerName;
  std::int64_t writerRating = 0;
  std::int64_t didNegotiate = 0;  // 1 once the season's pay was negotiated
  std::int64_t didAct = 1;        // 0: the performer directs, produces or invests only
  double equityPercentage = 0;    // the performer's stake, percent
  double equityDollarsInvested = 0;
  std::int64_t franchise = -1;    // movieNumber of the saga entry; -1 when none
  std::int64_t franchiseId = -1;  // id of the saga; -1 when none
  bool operator==(const Audition&) const = default;
};

// A class that the performer signed up for. It is done when weeksRemaining is 0, and stays in the list.
struct ActingClass {
  std::int64_t classId = 0;     // 1 to 47
  std::int64_t energyCost = 0;  // per week while it runs
  std::int64_t weeksTotal = 0;
  std::int64_t weeksRemaining = 0;
  double experience = 0;   // gained at the end
  std::int64_t level = 0;  // 1 to 4
  std::int64_t cost = 0;   // dollars, paid at sign-up
  std::int64_t yearStarted = 0;
  bool operator==(const ActingClass&) const = default;
};

// An agent who offered to represent the performer. At most one is signed.
struct TalentAgent {
  std::int64_t id = 0;
  std::string name;
  std::string agency;
  std::int64_t typeOfAgent = 0;  // 0 to 2; 2 never carries a royalty bonus
  std::string image;
  double commissionPercentage = 0;  // share of the agent's deals, a fraction in spite of the name
  double residualBonus = 0;         // percentage points
  double royaltyBonus = 0;          // percentage points; 0 for none
  std::int64_t negotiationBonus = 0;
  std::int64_t rating = 0;
  double fanBonus = 0;          // multiplies fan gains
  std::int64_t maxBudget = 0;   // dollars; the largest production that the agent has access to
  std::int64_t weekSigned = 0;  // week of the offer
  std::int64_t contractYears = 0;
  std::int64_t weekContractEnds = 0;            // 0 until signed
  std::int64_t penaltyForBreakingContract = 0;  // dollars
  std::int64_t yearSigned = 0;                  // year of the offer
  std::int64_t bookingRequirement = 2;          // always 2
  double relationship = 65;
  std::int64_t isSigned = 0;
  std::int64_t weekToSendAudition = 0;  // the agent sends an audition when weekNumber is a multiple of it
  std::int64_t bookings = 0;            // auditions sent
  double totalAgentEarnings = 0;
  bool operator==(const TalentAgent&) const = default;
};

// A business manager. Exists for the save format only: no rule adds one.
struct Manager {
  std::int64_t id = 0;
  bool operator==(const Manager&) const = default;
};

// The project that an e-mail offers: an investment, a role with a stake, or the first film of a saga. In
// memory only: drawn when its screen is first opened, and the same when it is opened again.
struct EmailedProject {
  std::int64_t emailId = 0;
  Audition project;
  bool operator==(const EmailedProject&) const = default;
};

}  // namespace tb
