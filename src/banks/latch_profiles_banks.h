#pragma once

// The line under a name and the interests on a card of the dating app. The rows are in
// banks/latch_profiles.txt.

#include "banks/banks.h"

#define LATCH_PROFILES_BANKS(BANK) \
  BANK(femaleTagLines, 54, "")     \
  BANK(maleTaglines, 44, "")       \
  BANK(interests, 205, "")

DECLARE_BANKS(LATCH_PROFILES_BANKS)
