#pragma once

// Emails with offers of an investment, of a role for a share and of a franchise, and the log lines that
// announce them. The rows are in banks/offers.txt.

#include "banks/banks.h"

#define OFFERS_BANKS(BANK)        \
  BANK(investorTitle, 5, "name")  \
  BANK(investorBody, 20, "")      \
  BANK(investorFeed, 50, "")      \
  BANK(backendTitle, 5, "name")   \
  BANK(backendBody, 10, "")       \
  BANK(backendFeed, 50, "")       \
  BANK(franchiseTitle, 5, "name") \
  BANK(franchiseBody, 10, "")     \
  BANK(franchiseFeed, 50, "")

DECLARE_BANKS(OFFERS_BANKS)
