#pragma once

// The fields of the records in core/records/career.h, for the save file.

#include "core/record_fields.h"
#include "core/records/career.h"

namespace tb {

RECORD_FIELDS(Audition, filmId, imageString, typeOfFilm, isPrincipal, isUnion, title, description,
              roleDescription, genres, role, characterName, numberOfEpisodesActed, numberOfEpisodesTotal,
              parentSeriesFilmId, isContinued, seasonNumber, submittedYear, workYear, weekSubmitted,
              weekAudition, weekToWork, weekReleased, payment, buyout, residual, royalty, budget, source,
              sourceId, funnelStage, funnelStageSent, didBribe, rehearsalRating, rehearsalBoostCount,
              performanceRating, performanceBoostCount, promoteHypeCount, hypeRating, auditionDifficulty,
              directorRating, directorName, writerName, writerRating, didNegotiate, didAct, equityPercentage,
              equityDollarsInvested, franchise, franchiseId);
RECORD_RANGES(Audition, {"filmId", uniqueId()}, {"typeOfFilm", oneOf(0, 4)}, {"isPrincipal", oneOf(0, 2)},
              {"funnelStage", oneOf(-1, 3)}, {"numberOfEpisodesActed", between(0, 1'000)},
              {"numberOfEpisodesTotal", between(0, 1'000)}, {"workYear", between(0, 100'000)},
              {"weekToWork", between(-1e6, 1e6)}, {"weekReleased", between(-1e6, 1e6)},
              {"weekAudition", between(-1e6, 1e6)}, {"weekSubmitted", between(-1e6, 1e6)},
              {"didBribe", between(0, 99)}, {"rehearsalRating", between(0, 1'000'000)},
              {"performanceRating", between(0, 1'000'000)}, {"rehearsalBoostCount", between(0, 1'000)},
              {"performanceBoostCount", between(0, 1'000)}, {"hypeRating", between(0, 1'000)},
              {"auditionDifficulty", between(0, 1'000'000)}, {"directorRating", between(0, 10'000)},
              {"writerRating", between(0, 10'000)}, {"equityPercentage", between(0, 100)});

RECORD_FIELDS(ActingClass, classId, energyCost, weeksTotal, weeksRemaining, experience, level, cost,
              yearStarted);

RECORD_RANGES(ActingClass, {"weeksTotal", between(0, 1'000)}, {"weeksRemaining", between(0, 1'000)},
              {"experience", between(0, 1e9)});

RECORD_FIELDS(TalentAgent, id, name, agency, typeOfAgent, image, commissionPercentage, residualBonus,
              royaltyBonus, negotiationBonus, rating, fanBonus, maxBudget, weekSigned, contractYears,
              weekContractEnds, penaltyForBreakingContract, yearSigned, bookingRequirement, relationship,
              isSigned, weekToSendAudition, bookings, totalAgentEarnings);

RECORD_RANGES(TalentAgent, {"typeOfAgent", oneOf(0, 2)}, {"commissionPercentage", between(0, 1)},
              {"fanBonus", between(0, 1'000)}, {"residualBonus", between(0, 1'000)},
              {"royaltyBonus", between(0, 1'000)}, {"negotiationBonus", between(0, 1'000)},
              {"rating", between(0, 1'000)}, {"contractYears", between(0, 1'000)},
              {"weekToSendAudition", between(0, 1'000)});

RECORD_FIELDS(Manager, id);

}  // namespace tb
