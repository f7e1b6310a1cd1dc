#pragma once

// Summaries of audience reviews: four sentences by register and mood. The rows are in
// banks/review_summary.txt.

#include "banks/banks.h"

#define REVIEW_SUMMARY_BANKS(BANK)                  \
  BANK(verdictCasualVeryPositive, 15, "subject")    \
  BANK(verdictCasualPositive, 15, "subject")        \
  BANK(verdictCasualMixed, 15, "subject")           \
  BANK(verdictCasualMixedToNegative, 15, "subject") \
  BANK(verdictCasualVeryNegative, 15, "subject")    \
  BANK(verdictFormalVeryPositive, 15, "subject")    \
  BANK(verdictFormalPositive, 15, "subject")        \
  BANK(verdictFormalMixed, 15, "subject")           \
  BANK(verdictFormalMixedToNegative, 14, "subject") \
  BANK(verdictFormalVeryNegative, 14, "subject")    \
  BANK(balanceCasualVeryPositive, 8, "good bad")    \
  BANK(balanceCasualPositive, 8, "good bad")        \
  BANK(balanceCasualMixed, 8, "good bad")           \
  BANK(balanceCasualMixedToNegative, 8, "good bad") \
  BANK(balanceCasualVeryNegative, 8, "good bad")    \
  BANK(balanceFormalVeryPositive, 7, "good bad")    \
  BANK(balanceFormalPositive, 7, "good bad")        \
  BANK(balanceFormalMixed, 7, "good bad")           \
  BANK(balanceFormalMixedToNegative, 7, "good bad") \
  BANK(balanceFormalVeryNegative, 7, "good bad")    \
  BANK(consensusCasualVeryPositive, 6, "label")     \
  BANK(consensusCasualPositive, 6, "label")         \
  BANK(consensusCasualMixed, 6, "label")            \
  BANK(consensusCasualMixedToNegative, 6, "label")  \
  BANK(consensusCasualVeryNegative, 6, "label")     \
  BANK(consensusFormalVeryPositive, 6, "label")     \
  BANK(consensusFormalPositive, 6, "label")         \
  BANK(consensusFormalMixed, 6, "label")            \
  BANK(consensusFormalMixedToNegative, 6, "label")  \
  BANK(consensusFormalVeryNegative, 6, "label")     \
  BANK(adviceCasualVeryPositive, 2, "")             \
  BANK(adviceCasualPositive, 2, "")                 \
  BANK(adviceCasualMixed, 2, "")                    \
  BANK(adviceCasualMixedToNegative, 2, "")          \
  BANK(adviceCasualVeryNegative, 2, "")             \
  BANK(adviceFormalVeryPositive, 1, "")             \
  BANK(adviceFormalPositive, 1, "")                 \
  BANK(adviceFormalMixed, 1, "")                    \
  BANK(adviceFormalMixedToNegative, 1, "")          \
  BANK(adviceFormalVeryNegative, 1, "")

DECLARE_BANKS(REVIEW_SUMMARY_BANKS)
