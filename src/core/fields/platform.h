#pragma once

// The fields of the records in core/records/platform.h, for the save file.

#include "core/record_fields.h"
#include "core/records/platform.h"

namespace tb {

RECORD_FIELDS(Employee, id, name, salary, department, imageString, originalRating, rating, motiviation,
              yearSigned, weekSigned, sharesOwned, energyBoost, yearEnded);

RECORD_FIELDS(StreamingTechUpgrade, uniqueId, title, categoryId, category, tier, cost, weeklyCost,
              requiredSubscribers, description, bonus);

RECORD_FIELDS(FundraisingRound, id, equityOffered, valuationOffered, cashOffered, sharesToIssue, interest,
              investorName, investorAmount, investorValuation, weeksToClose);
RECORD_RANGES(FundraisingRound, {"investorAmount", asLongAs("investorName")},
              {"investorValuation", asLongAs("investorName")});

RECORD_FIELDS(RivalPlatform, id, name, subscribers, weeklyRevenue, weeklyCosts, cashOnHand,
              infrastructureValue, growthRate, sharesOutstanding, specialty, priceHistory, status);

RECORD_FIELDS(RivalHolding, rivalId, shares, costBasis);

}  // namespace tb
