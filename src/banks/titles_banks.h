#pragma once

// The tables of the catalogue, with " | " between columns (film/catalogue.h). The rows are in
// banks/titles.txt.

#include "banks/banks.h"

#define TITLES_BANKS(BANK)          \
  BANK(movies, 145, "name")         \
  BANK(movieFranchises, 22, "name") \
  BANK(royaltyMovies, 23, "name")   \
  BANK(investmentMovies, 36, "name")

DECLARE_BANKS(TITLES_BANKS)
