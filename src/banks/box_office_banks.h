#pragma once

// The box office. The rows stand in banks/box_office.txt.

#include "banks/banks.h"

#define BOX_OFFICE_BANKS(BANK)             \
  BANK(openingWeekend, 67, "title amount") \
  BANK(closing, 50, "title amount")

DECLARE_BANKS(BOX_OFFICE_BANKS)
