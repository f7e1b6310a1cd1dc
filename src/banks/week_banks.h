#pragma once

// Lines for a week without news. The rows are in banks/week.txt.

#include "banks/banks.h"

#define WEEK_BANKS(BANK) BANK(weeklyTips, 9, "")

DECLARE_BANKS(WEEK_BANKS)
