#pragma once

// Critics. The rows are in banks/critics.txt.

#include "banks/banks.h"

#define CRITICS_BANKS(BANK)                                         \
  BANK(longReviewBank1, 26, "title director name genre prop place") \
  BANK(longReviewBank2, 29, "title director name genre prop place") \
  BANK(longReviewBank3, 25, "title director name genre prop place") \
  BANK(longReviewBank4, 26, "title director name genre prop place") \
  BANK(longReviewBank5, 30, "title director name genre prop place") \
  BANK(criticConsensusBank90, 14, "title")                          \
  BANK(criticConsensusBank75, 14, "title")                          \
  BANK(criticConsensusBank60, 14, "title")                          \
  BANK(criticConsensusBank40, 14, "title")                          \
  BANK(criticConsensusBank20, 14, "title")                          \
  BANK(criticConsensusBank0, 14, "title")                           \
  BANK(reviewerCompanyBank, 27, "")                                 \
  BANK(handleFirstParts, 60, "")                                    \
  BANK(handleSecondParts, 80, "")

DECLARE_BANKS(CRITICS_BANKS)
