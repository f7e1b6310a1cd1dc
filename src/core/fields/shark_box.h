#pragma once

// The fields of the records in core/records/shark_box.h, for the save file.

#include "core/record_fields.h"
#include "core/records/shark_box.h"

namespace tb {

RECORD_FIELDS(SharkBoxRound, name, week, valuation, dilution, isDown);

RECORD_FIELDS(SharkBoxDeal, id, productName, tagline, category, colorSeed, founderName, founderTitle,
              founderMonogram, founderImage, askAmount, askEquity, investedAmount, equity, weekAccepted,
              rounds, roundsResolved, stakeHistory, lastOfferedRound, exitWeek, exitType, exitMultiple,
              status, realizedCash, weekLastViewed, modelVersion, quality, ttmRevenue, growthPct,
              grossMargin);

RECORD_RANGES(SharkBoxDeal, {"equity", between(0, 1)});

}  // namespace tb
