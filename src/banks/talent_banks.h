#pragma once

// Classes and the showreel. The rows are in banks/talent.txt.

#include "banks/banks.h"

#define TALENT_BANKS(BANK)                        \
  BANK(showreelScene, 20, "amount description n") \
  BANK(classSignUp, 20, "title code weeks")

DECLARE_BANKS(TALENT_BANKS)
