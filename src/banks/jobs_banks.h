#pragma once

// Temp jobs. The rows are in banks/jobs.txt.

#include "banks/banks.h"

#define JOBS_BANKS(BANK) BANK(jobDescription, 13, "")

DECLARE_BANKS(JOBS_BANKS)
