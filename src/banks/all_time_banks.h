#pragma once

// Tables of the most successful titles. The rows are in banks/all_time.txt.

#include "banks/banks.h"

#define ALL_TIME_BANKS(BANK)  \
  BANK(movieRecords, 250, "") \
  BANK(tvRecords, 250, "")

DECLARE_BANKS(ALL_TIME_BANKS)
