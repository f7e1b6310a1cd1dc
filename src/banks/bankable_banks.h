#pragma once

// The table of stars. The rows are in banks/bankable.txt.

#include "banks/banks.h"

#define BANKABLE_BANKS(BANK) BANK(bankables, 100, "")

DECLARE_BANKS(BANKABLE_BANKS)
