#pragma once

// Syndication. The rows stand in banks/syndication.txt.

#include "banks/banks.h"

#define SYNDICATION_BANKS(BANK) BANK(syndicationDealBank, 30, "title amount network years")

DECLARE_BANKS(SYNDICATION_BANKS)
