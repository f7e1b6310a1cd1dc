#pragma once

// Syndication. The rows are in banks/syndication.txt.

#include "banks/banks.h"

#define SYNDICATION_BANKS(BANK) BANK(syndicationDealBank, 30, "title amount network years")

DECLARE_BANKS(SYNDICATION_BANKS)
