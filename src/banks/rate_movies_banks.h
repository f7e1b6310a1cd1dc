#pragma once

// The table of titles to review, and the sentences of reviews by stars. The rows are in
// banks/rate_movies.txt.

#include "banks/banks.h"

#define RATE_MOVIES_BANKS(BANK)     \
  BANK(rateMovieCatalogue, 210, "") \
  BANK(reviewFirstSentence, 30, "") \
  BANK(reviewMiddle1, 6, "")        \
  BANK(reviewMiddle2, 6, "")        \
  BANK(reviewMiddle3, 6, "")        \
  BANK(reviewMiddle4, 6, "")        \
  BANK(reviewMiddle5, 6, "")        \
  BANK(reviewLast1, 6, "")          \
  BANK(reviewLast2, 6, "")          \
  BANK(reviewLast3, 6, "")          \
  BANK(reviewLast4, 6, "")          \
  BANK(reviewLast5, 6, "")

DECLARE_BANKS(RATE_MOVIES_BANKS)
