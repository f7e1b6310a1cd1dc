#pragma once

// The award shows: descriptions, rival titles, and what is said on the night. The rows are in
// banks/awards.txt.

#include "banks/banks.h"

#define AWARDS_BANKS(BANK)         \
  BANK(awardDescriptions, 14, "")  \
  BANK(rivalTitles, 60, "")        \
  BANK(awardSpeeches, 24, "title") \
  BANK(awardLosses, 20, "name")    \
  BANK(envelopeMoments, 20, "")

DECLARE_BANKS(AWARDS_BANKS)
