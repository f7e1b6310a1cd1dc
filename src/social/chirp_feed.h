#pragma once

// The Chirp feed: the kept posts among those of a crowd that is drawn when the feed opens and never saved.

#include <vector>

#include "core/game.h"

namespace tb {

// Draws a feed, newest post first: strangers about nobody, a star or the performer; talk about the
// performer's titles; gossip; Metflix about its chart; an interview quote; and all posts of
// `saveAllChirpList`. Ids of the crowd can repeat.
[[nodiscard]] std::vector<Chirp> buildFeed(Game& game);

// Draws 3 to 8 replies of strangers to a post of the performer's.
[[nodiscard]] std::vector<Chirp> drawReplies(Game& game);

}  // namespace tb
