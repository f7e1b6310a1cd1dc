#pragma once

// Premieres and promotion. The rows are in banks/film.txt.

#include "banks/banks.h"

#define FILM_BANKS(BANK)                \
  BANK(premiere, 20, "title views")     \
  BANK(talkShows, 20, "")               \
  BANK(promotionQuestions, 30, "title") \
  BANK(promotionAnswers, 30, "")

DECLARE_BANKS(FILM_BANKS)
