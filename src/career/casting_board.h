#pragma once

// The casting network: a board of roles to submit for. It is drawn each time it is opened and not saved.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "film/catalogue.h"

namespace tb {

// A role on the board. Fields with the same name as in Audition (core/records/career.h) mean the same.
struct CastingListing {
  std::int64_t filmId = 0;
  const Movie* movie = nullptr;  // in the catalogue
  std::string role;
  std::int64_t isPrincipal = 0;  // rolePart::background or rolePart::principal
  std::int64_t isUnion = 0;
  double payment = 0;
  double buyout = 0;
  double budget = 0;
  std::int64_t weekAudition = 0;
  std::int64_t weekToWork = 0;
  double residual = 0;
  std::int64_t numberOfEpisodesActed = 0;
  std::int64_t directorRating = 0;
  std::string directorName;
  std::string characterName;
};

using CastingBoard = std::vector<CastingListing>;

// Draws a board of five to eight roles. Increments `filmId`; the listings get the ids after it.
[[nodiscard]] CastingBoard openCastingNetwork(Game& game);

// Draws one role as on the board, for an agent with access to productions up to `maxBudget` dollars (0: to
// those of the board).
[[nodiscard]] CastingListing drawAgentListing(Game& game, std::int64_t filmId, std::int64_t maxBudget);

}  // namespace tb
