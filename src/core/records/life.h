#pragma once

// Love and family.

#include <cstdint>
#include <string>
#include <vector>

namespace tb {

// Values of Matches::relationshipState. The partner is the first record with `dating` or above.
namespace bond {
inline constexpr std::int64_t ended = -1;
inline constexpr std::int64_t matched = 0;
inline constexpr std::int64_t dating = 1;
inline constexpr std::int64_t engaged = 2;
inline constexpr std::int64_t married = 3;
}  // namespace bond

// A match on Latch. Ended relationships stay in the list.
//
// matchId is not unique, because its counter restarts at every launch. Matches are identified by their index
// in the list.
struct Matches {
  std::int64_t matchId = 0;
  std::string name;
  std::string matchImage;
  std::string matchPrompt;
  std::string matchPromptResponse;
  std::string matchComment;  // the message that the player sent
  std::string occupation;
  std::int64_t weekMatched = 0;
  std::int64_t weekStartedDating = 0;  // 0 until they are dating
  std::int64_t weekEndedDating = -1;   // -1 while open
  std::int64_t energyBonus = 0;        // added to totalEnergyMax during the relationship
  double relationshipStatus = 0;       // 100 is a full meter, 105 the maximum; below 0 the relationship ends
  std::int64_t age = 18;
  double chemistry = 5;     // 5 and up
  std::int64_t beauty = 5;  // this and the next three: 5 to 100
  std::int64_t intelligence = 5;
  std::int64_t personality = 5;
  std::int64_t maintenance = 5;  // can exceed 100 during a pregnancy
  double weeklyEarnings = 0;
  std::int64_t igFollowers = 0;
  std::vector<std::string> interests;
  std::int64_t interested = 0;  // 0: likes the player; 1: will reject the player
  std::string pickupLineResponse;
  std::string breakupLine;             // empty until a break-up
  std::int64_t relationshipState = 0;  // bond
  std::int64_t timeToPropose = 52;     // weeks of dating before a proposal is accepted, 52 to 152
  std::int64_t timeToBirth = -1;       // weeks left of a pregnancy; -1 for none
  bool operator==(const Matches&) const = default;
};

struct Child {
  std::int64_t id = 0;
  std::string name;
  std::int64_t gender = 0;
  std::int64_t birthYear = 0;
  std::int64_t birthWeek = 0;  // week of the year
  std::int64_t birthWeekForTracking = 0;
  std::string relationship;  // "Son" or "Daughter"
  std::string partnerName;   // the other parent
  std::string artistName;    // the performer
  std::int64_t weeklyEnergyCost = 0;
  double weeklyFinancialCost = 0;
  std::string imageString;
  std::string occupation;        // empty for a newborn
  std::int64_t songWriting = 0;  // this and the next four: -10 to 10 at birth
  std::int64_t virality = 0;
  std::int64_t vocals = 0;
  std::int64_t rhythm = 0;
  std::int64_t charisma = 0;
  std::int64_t totalEnergyMax = 0;
  double admiration = 100;
  double weeklyAdmirationLoss = 0;
  std::int64_t followers = 0;
  std::int64_t typeOfRelationship = 1;
  std::int64_t ageofDeath = 0;  // age in years
  std::string causeOfDeath;
  std::vector<std::string> relationshipTracker;
  std::string extraTwo;  // always empty
  bool operator==(const Child&) const = default;
};

}  // namespace tb
