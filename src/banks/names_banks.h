#pragma once

// Names of fictional people. The rows are in banks/names.txt.

#include "banks/banks.h"

#define NAMES_BANKS(BANK)       \
  BANK(firstNames, 92, "")      \
  BANK(lastNameBank, 254, "")   \
  BANK(maleFirstNames, 120, "") \
  BANK(femaleFirstNames, 120, "")

DECLARE_BANKS(NAMES_BANKS)
