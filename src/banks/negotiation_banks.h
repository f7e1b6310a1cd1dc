#pragma once

// What the performer and the director say about the pay for another season. The rows are in
// banks/negotiation.txt.

#include "banks/banks.h"

#define NEGOTIATION_BANKS(BANK)  \
  BANK(reasonsToRefuse, 20, "")  \
  BANK(responsesToAgree, 20, "") \
  BANK(reasonsYouDeserveMorePayBecauseShowIsSuccessful, 20, "")

DECLARE_BANKS(NEGOTIATION_BANKS)
