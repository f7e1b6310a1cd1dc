#pragma once

// The catalogue: tables, " | " between the columns (film/catalogue.h). The rows stand in banks/titles.txt.

#include "banks/banks.h"

#define TITLES_BANKS(BANK)          \
  BANK(movies, 145, "name")         \
  BANK(movieFranchises, 22, "name") \
  BANK(royaltyMovies, 23, "name")   \
  BANK(investmentMovies, 36, "name")

DECLARE_BANKS(TITLES_BANKS)
