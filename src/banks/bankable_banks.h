#pragma once

// Stars: a table. The rows stand in banks/bankable.txt.

#include "banks/banks.h"

#define BANKABLE_BANKS(BANK) BANK(bankables, 100, "")

DECLARE_BANKS(BANKABLE_BANKS)
