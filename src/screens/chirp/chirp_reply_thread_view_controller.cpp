#include "screens/chirp/chirp_reply_thread_view_controller.h"

#include "core/find.h"
#include "screens/chirp/chirp_parts.h"
#include "screens/parts.h"
#include "social/chirp_feed.h"

namespace tb {

using namespace view;

void ChirpReplyThreadViewController::load(Stage& stage) { replies_ = drawReplies(stage.game()); }

Page ChirpReplyThreadViewController::view(const Game& game) {
  const auto index = find(game.world.saveAllChirpList, &Chirp::id, chirp_id_);
  if (!index) return {.title = "Chirp", .nodes = {caption("This chirp is gone.")}};
  Section answers{.heading = "REPLIES"};
  for (const Chirp& reply : replies_) answers.nodes.push_back(postNode(game, reply));
  return {.title = "Chirp",
          .nodes = {postNode(game, game.world.saveAllChirpList[*index]), std::move(answers)}};
}

}  // namespace tb
