#pragma once

// The fields of the records in core/records/payouts.h, for the save file.

#include "core/record_fields.h"
#include "core/records/payouts.h"

namespace tb {

RECORD_FIELDS(WeeklyEarnings, filmId, filmTitle, filmType, sessionEarned, buyoutEarned, residualsEarned,
              royaltyEarned, earningDescription, yearNumber, weekNumberForTracking);
RECORD_RANGES(WeeklyEarnings, {"filmType", oneOf(0, 4)});

RECORD_FIELDS(RoyaltyPayout, id, filmId, title, yearNumber, weekNumberForTracking, payout, typeOfPayment,
              sourceId, agentEarnings, totalDealGross, syndicationYears, syndicationName);

RECORD_FIELDS(EquityPayout, id, filmId, yearNumber, weekNumberForTracking, payOut, typeOfPayment, sourceId,
              managerEarnings);

}  // namespace tb
