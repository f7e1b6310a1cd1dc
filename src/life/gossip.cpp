#include "life/gossip.h"

#include "banks/draw.h"
#include "banks/relationships_banks.h"
#include "core/text.h"
#include "life/partner.h"

namespace tb {

std::string drawGossip(Game& game, const Matches& partner) {
  constexpr std::int64_t mostFansOfGossip = 250'000;
  const bool isHollywood = game.world.totalFans > mostFansOfGossip;
  const std::string_view row =
      drawFreshRow(game, isHollywood ? bank::relationshipHollywood : bank::relationshipGossip);
  return (isHollywood ? "Hollywood: " : "Gossip: ") +
         fill(row, {{"performer", game.world.myName},
                    {"partner", partner.name},
                    {"meter", std::to_string(shownMeter(partner))}});
}

}  // namespace tb
