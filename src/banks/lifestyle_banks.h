#pragma once

// What the lifestyle screen and the energy tracker say of their rows. The rows are in banks/lifestyle.txt.

#include "banks/banks.h"

#define LIFESTYLE_BANKS(BANK)        \
  BANK(lifestyleTaglines, 17, "")    \
  BANK(lifestyleRequirements, 4, "") \
  BANK(lifestyleUnlocks, 3, "")      \
  BANK(oneTimeHints, 3, "")          \
  BANK(oneTimeClaims, 3, "")         \
  BANK(energySources, 13, "")

DECLARE_BANKS(LIFESTYLE_BANKS)
