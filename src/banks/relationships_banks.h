#pragma once

// What is said in a relationship, about it, and at its end. The rows are in banks/relationships.txt.

#include "banks/banks.h"

#define RELATIONSHIPS_BANKS(BANK)                            \
  BANK(relationshipGossip, 20, "performer partner meter")    \
  BANK(relationshipHollywood, 20, "performer partner meter") \
  BANK(partnerPosts, 20, "performer")                        \
  BANK(breakUpHeartbreaker, 28, "")                          \
  BANK(breakUpGoodTerms, 24, "")                             \
  BANK(divorceLines, 100, "")                                \
  BANK(goldDiggerLines, 28, "")                              \
  BANK(moneyGiven, 20, "amount")                             \
  BANK(sweetTexts, 110, "")                                  \
  BANK(workTogether, 20, "partner")                          \
  BANK(workTalks, 20, "partner")                             \
  BANK(workMissed, 20, "partner")                            \
  BANK(metflixCozy, 20, "partner")                           \
  BANK(metflixChoosing, 20, "partner")                       \
  BANK(metflixAsleep, 20, "partner")                         \
  BANK(metflixOwnTitle, 20, "partner title")

DECLARE_BANKS(RELATIONSHIPS_BANKS)
