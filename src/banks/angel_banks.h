#pragma once

// Talk about an investment in a production. The rows are in banks/angel.txt.

#include "banks/banks.h"

#define ANGEL_BANKS(BANK)                \
  BANK(angelTeam, 20, "director writer") \
  BANK(angelPitch, 20, "")               \
  BANK(angelMoney, 20, "budget")         \
  BANK(angelAsk, 20, "percent")          \
  BANK(angelAccept, 20, "")              \
  BANK(angelDecline, 20, "")

DECLARE_BANKS(ANGEL_BANKS)
