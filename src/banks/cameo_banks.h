#pragma once

// What fans order in a paid video. The rows are in banks/cameo.txt.

#include "banks/banks.h"

#define CAMEO_BANKS(BANK)         \
  BANK(cameoRequests, 30, "name") \
  BANK(cameoPitches, 6, "")

DECLARE_BANKS(CAMEO_BANKS)
