#pragma once

// Conversations on the dating app, and the post of a new couple. The rows are in banks/latch_talk.txt.

#include "banks/banks.h"

#define LATCH_TALK_BANKS(BANK)     \
  BANK(pickupLines, 25, "")        \
  BANK(hingeComments, 25, "")      \
  BANK(acceptanceLines, 25, "")    \
  BANK(rejectionLines, 25, "")     \
  BANK(followUps, 51, "")          \
  BANK(interestedReplies, 25, "")  \
  BANK(rejectingReplies, 25, "")   \
  BANK(officialChirps, 28, "name") \
  BANK(officialTags, 20, "")

DECLARE_BANKS(LATCH_TALK_BANKS)
