#pragma once

// Sentences of the fame breakdown, one a band. The rows are in banks/fame.txt.

#include "banks/banks.h"

#define FAME_BANKS(BANK)             \
  BANK(publicImageSentences, 11, "") \
  BANK(fansSentences, 7, "")         \
  BANK(experienceTitles, 10, "")     \
  BANK(talentSentences, 11, "")      \
  BANK(awardsSentences, 11, "")

DECLARE_BANKS(FAME_BANKS)
