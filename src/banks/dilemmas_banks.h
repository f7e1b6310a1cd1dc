#pragma once

// Public relations dilemmas, ten rows each. The rows are in banks/dilemmas.txt.

#include "banks/banks.h"

#define DILEMMAS_BANKS(BANK) BANK(eventScenarios, 660, "name")

DECLARE_BANKS(DILEMMAS_BANKS)
