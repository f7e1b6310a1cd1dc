#pragma once

// A season on the air: one episode per week, starting in the week of its release.

#include "core/game.h"

namespace tb {

// Premieres a season: draws the audience from the budget and the hype and adds the season's viewing figures.
// Does nothing for a project without a budget.
void premiereSeries(Game& game, const Audition& project);

// Airs an episode 1 to (number of episodes - 1) weeks after the premiere: adds fans for the lead, and draws
// an audience from the previous one, the scores and the popularity.
void advanceSeries(Game& game, const Audition& project, std::int64_t weeksSinceRelease);

}  // namespace tb
