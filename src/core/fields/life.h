#pragma once

// The fields of the records in core/records/life.h, for the save file.

#include "core/record_fields.h"
#include "core/records/life.h"

namespace tb {

RECORD_FIELDS(Matches, matchId, name, matchImage, matchPrompt, matchPromptResponse, matchComment, occupation,
              weekMatched, weekStartedDating, weekEndedDating, energyBonus, relationshipStatus, age,
              chemistry, beauty, intelligence, personality, maintenance, weeklyEarnings, igFollowers,
              interests, interested, pickupLineResponse, breakupLine, relationshipState, timeToPropose,
              timeToBirth);

RECORD_RANGES(Matches, {"energyBonus", between(-1'000'000, 1'000'000)}, {"age", between(0, 1'000)},
              {"weekMatched", between(0, 1e6)}, {"weekStartedDating", between(0, 1e6)},
              {"weekEndedDating", between(-1, 1e6)}, {"relationshipStatus", between(-1'000, 105)},
              {"chemistry", between(0, 10'000)}, {"maintenance", between(0, 1'000'000)},
              {"weeklyEarnings", between(0, 1e9)}, {"igFollowers", between(0, 1e11)},
              {"relationshipState", between(-1, 3)}, {"timeToPropose", between(0, 10'000)},
              {"timeToBirth", between(-1, 1'000)});

RECORD_FIELDS(Child, id, name, gender, birthYear, birthWeek, birthWeekForTracking, relationship, partnerName,
              artistName, weeklyEnergyCost, weeklyFinancialCost, imageString, occupation, songWriting,
              virality, vocals, rhythm, charisma, totalEnergyMax, admiration, weeklyAdmirationLoss, followers,
              typeOfRelationship, ageofDeath, causeOfDeath, relationshipTracker, extraTwo);

RECORD_RANGES(Child, {"weeklyEnergyCost", between(0, 1'000)});

}  // namespace tb
