#pragma once

// Audience reviews. The rows are in banks/user_reviews.txt.

#include "banks/banks.h"

#define USER_REVIEWS_BANKS(BANK)                                 \
  BANK(userReviewBody1, 145, "title director name prop place")   \
  BANK(userReviewBody2, 135, "title director name prop place")   \
  BANK(userReviewBody3, 100, "title director name prop place")   \
  BANK(userReviewBody4, 121, "title director name prop place")   \
  BANK(userReviewBody5, 193, "title director name prop place")   \
  BANK(userReviewSnippet1, 49, "title director name prop place") \
  BANK(userReviewSnippet2, 49, "title director name prop place") \
  BANK(userReviewSnippet3, 49, "title director name prop place") \
  BANK(userReviewSnippet4, 49, "title director name prop place") \
  BANK(userReviewSnippet5, 49, "title director name prop place")

DECLARE_BANKS(USER_REVIEWS_BANKS)
