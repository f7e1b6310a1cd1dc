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

RECORD_RANGES(Matches, {"energyBonus", between(-1'000'000, 1'000'000)}, {"age", between(0, 1'000)});

RECORD_FIELDS(Child, id, name, gender, birthYear, birthWeek, birthWeekForTracking, relationship, partnerName,
              artistName, weeklyEnergyCost, weeklyFinancialCost, imageString, occupation, songWriting,
              virality, vocals, rhythm, charisma, totalEnergyMax, admiration, weeklyAdmirationLoss, followers,
              typeOfRelationship, ageofDeath, causeOfDeath, relationshipTracker, extraTwo);

}  // namespace tb
