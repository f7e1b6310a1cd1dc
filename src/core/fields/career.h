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

RECORD_FIELDS(ActingClass, classId, energyCost, weeksTotal, weeksRemaining, experience, level, cost,
              yearStarted);

RECORD_FIELDS(TalentAgent, id, name, agency, typeOfAgent, image, commissionPercentage, residualBonus,
              royaltyBonus, negotiationBonus, rating, fanBonus, maxBudget, weekSigned, contractYears,
              weekContractEnds, penaltyForBreakingContract, yearSigned, bookingRequirement, relationship,
              isSigned, weekToSendAudition, bookings, totalAgentEarnings);

RECORD_FIELDS(Manager, id);

}  // namespace tb
