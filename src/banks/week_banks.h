#pragma once

// What the weekly feed says when there is no news. The rows stand in banks/week.txt.

#include "banks/banks.h"

#define WEEK_BANKS(BANK) BANK(weeklyTips, 9, "")

DECLARE_BANKS(WEEK_BANKS)
