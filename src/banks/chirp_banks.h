#pragma once

// Posts of Chirp, their answers, and the handles of strangers. The rows are in banks/chirp.txt.

#include "banks/banks.h"

#define CHIRP_BANKS(BANK)                           \
  BANK(fanPosts, 103, "name star")                  \
  BANK(rudeLines, 30, "name")                       \
  BANK(workLoved, 20, "title name")                 \
  BANK(workArgued, 20, "title name")                \
  BANK(workPanned, 20, "title name")                \
  BANK(gossip, 45, "star other name")               \
  BANK(gossipAttribution, 20, "")                   \
  BANK(chartNotCharted, 20, "title views")          \
  BANK(chartDebut, 20, "title place views")         \
  BANK(chartMoving, 20, "title place weeks views")  \
  BANK(chartStaying, 20, "title place weeks views") \
  BANK(quotePosts, 20, "quote performer title")     \
  BANK(chirpHandleFirstParts, 50, "")               \
  BANK(chirpHandleSecondParts, 50, "")              \
  BANK(replies, 70, "")                             \
  BANK(chirpSuggestions, 30, "")

DECLARE_BANKS(CHIRP_BANKS)
