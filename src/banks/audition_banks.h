#pragma once

// Log lines about submissions, auditions and shoots. The rows are in banks/audition.txt.

#include "banks/banks.h"

#define AUDITION_BANKS(BANK)               \
  BANK(submission, 60, "title")            \
  BANK(silence, 25, "title")               \
  BANK(invitation, 25, "title n")          \
  BANK(investmentWrap, 25, "title stake")  \
  BANK(payday, 25, "title amount")         \
  BANK(withdrawal, 50, "title n")          \
  BANK(seriesCancellation, 49, "title")    \
  BANK(seriesRenewal, 49, "title season")  \
  BANK(sagaRenewal, 25, "title nextTitle") \
  BANK(sagaEnding, 25, "title")

DECLARE_BANKS(AUDITION_BANKS)
