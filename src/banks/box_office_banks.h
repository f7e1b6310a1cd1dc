#pragma once

// Box office. The rows are in banks/box_office.txt.

#include "banks/banks.h"

#define BOX_OFFICE_BANKS(BANK)             \
  BANK(openingWeekend, 67, "title amount") \
  BANK(closing, 50, "title amount")

DECLARE_BANKS(BOX_OFFICE_BANKS)
