#pragma once

// What comes of the event buttons of the week. The rows are in banks/events.txt.

#include "banks/banks.h"

#define EVENTS_BANKS(BANK)          \
  BANK(localTheater, 25, "")        \
  BANK(scriptReading, 40, "amount") \
  BANK(sideHustle, 20, "amount")    \
  BANK(streetMime, 10, "amount")    \
  BANK(publicImage, 48, "")         \
  BANK(eventRefusals, 10, "")       \
  BANK(checkupWorse, 5, "change")   \
  BANK(checkupSame, 5, "")          \
  BANK(checkupBetter, 5, "change")

DECLARE_BANKS(EVENTS_BANKS)
