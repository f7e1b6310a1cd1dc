#pragma once

// The prompts of the dating app and what people answer to them. The rows are in banks/latch_prompts.txt.

#include "banks/banks.h"

#define LATCH_PROMPTS_BANKS(BANK) \
  BANK(matchPrompts, 19, "")      \
  BANK(promptAnswers1, 25, "")    \
  BANK(promptAnswers2, 25, "")    \
  BANK(promptAnswers3, 25, "")    \
  BANK(promptAnswers4, 10, "")    \
  BANK(promptAnswers5, 10, "")    \
  BANK(promptAnswers6, 10, "")    \
  BANK(promptAnswers7, 25, "")    \
  BANK(promptAnswers8, 25, "")    \
  BANK(promptAnswers9, 25, "")    \
  BANK(promptAnswers10, 25, "")   \
  BANK(promptAnswers11, 25, "")   \
  BANK(promptAnswers12, 25, "")   \
  BANK(promptAnswers13, 25, "")   \
  BANK(promptAnswers14, 25, "")   \
  BANK(promptAnswers15, 15, "")   \
  BANK(promptAnswers16, 15, "")   \
  BANK(promptAnswers17, 15, "")   \
  BANK(promptAnswers18, 15, "")   \
  BANK(promptAnswers19, 15, "")

DECLARE_BANKS(LATCH_PROMPTS_BANKS)
