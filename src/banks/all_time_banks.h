#pragma once

// Titles of all time: tables. The rows stand in banks/all_time.txt.

#include "banks/banks.h"

#define ALL_TIME_BANKS(BANK)  \
  BANK(movieRecords, 250, "") \
  BANK(tvRecords, 250, "")

DECLARE_BANKS(ALL_TIME_BANKS)
