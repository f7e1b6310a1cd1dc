#pragma once

// Residuals, equity and royalties. The rows are in banks/earnings.txt.

#include "banks/banks.h"

#define EARNINGS_BANKS(BANK)                      \
  BANK(residualPaidBank, 18, "title amount")      \
  BANK(equityPaidBank, 30, "title amount")        \
  BANK(royaltyPaidBank, 20, "title amount gross") \
  BANK(royaltySignedBank, 30, "title percent")

DECLARE_BANKS(EARNINGS_BANKS)
