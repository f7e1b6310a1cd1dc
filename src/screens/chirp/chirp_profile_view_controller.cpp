#include "screens/chirp/chirp_profile_view_controller.h"

#include <algorithm>

#include "core/chirps.h"
#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/chirp/chirp_parts.h"
#include "screens/chirp/chirp_reply_thread_view_controller.h"
#include "screens/chirp/create_chirp_message_view_controller.h"
#include "screens/headshot.h"
#include "screens/parts.h"
#include "social/chirp_feed.h"
#include "social/chirp_posts.h"
#include "social/fame.h"

namespace tb {

using namespace view;

namespace {

constexpr std::size_t postsAtOnce = 15;

void askToDelete(Stage& stage, std::int64_t id) {
  stage.ask(Notice{.title = "🗑️ Delete Chirp 🗑️", .message = "\nIt is gone for good."},
            {{.label = "Keep", .weight = Button::Weight::primary},
             {.label = "Delete Chirp",
              .press = [id](Stage& asked) { deleteChirp(asked.game(), id); },
              .weight = Button::Weight::destructive}});
}

Button pinButton(const Chirp& chirp) {
  if (chirp.isPinned == 1) {
    return {.label = "Unpin from profile",
            .press = [id = chirp.id](Stage& stage) { unpin(stage.game(), id); },
            .weight = Button::Weight::quiet};
  }
  return {.label = "Pin to your profile",
          .press = [id = chirp.id](Stage& stage) { pin(stage.game(), id); },
          .weight = Button::Weight::quiet};
}

// A post of the player's, which leads to its replies.
Post ownPost(const Game& game, const Chirp& chirp) {
  Post post = postNode(game, chirp);
  post.press = [id = chirp.id](Stage& stage) { stage.open<ChirpReplyThreadViewController>(id); };
  return post;
}

Post managedPost(const Game& game, const Chirp& chirp) {
  Post post = ownPost(game, chirp);
  post.actions = {pinButton(chirp),
                  {.label = "Delete Chirp",
                   .press = [id = chirp.id](Stage& stage) { askToDelete(stage, id); },
                   .weight = Button::Weight::quiet}};
  return post;
}

// Indexes of the player's posts, latest first, with the pinned one before them.
std::vector<std::size_t> ownPosts(const WorldState& world) {
  std::vector<std::size_t> found;
  for (const bool isPinned : {true, false}) {
    for (std::size_t index = world.saveAllChirpList.size(); index-- > 0;) {
      const Chirp& chirp = world.saveAllChirpList[index];
      if (chirp.artistId == 0 && (chirp.isPinned == 1) == isPinned) found.push_back(index);
    }
  }
  return found;
}

std::vector<Node> profileNodes(const Game& game) {
  const WorldState& world = game.world;
  const std::vector<std::size_t> posts = ownPosts(world);
  return {Card{.title = world.myName,
               .subtitle = tb::format("{} list", fameLetter(world.saveFameLevel)),
               .picture = {performerPicture(world)},
               .nodes = {Text{.text = world.aboutDescription}}},
          Tiles{{{.label = "Followers", .value = shortCount(world.totalFans)},
                 {.label = "Chirps", .value = plainCount(game.locale, chirpsByPlayer(world))}}},
          PagedList{.key = "own",
                    .size = posts.size(),
                    .nodeAt = [&game, posts](std::size_t index) -> Node {
                      return managedPost(game, game.world.saveAllChirpList[posts[index]]);
                    },
                    .whenEmpty = "You have not chirped yet. The world is waiting, or will be.",
                    .pageLength = postsAtOnce}};
}

}  // namespace

void ChirpProfileViewController::drawFeed(Stage& stage) {
  feed_ = buildFeed(stage.game());
  kept_ = stage.game().world.saveAllChirpList.size();
}

void ChirpProfileViewController::load(Stage& stage) { drawFeed(stage); }

// After a post the player is on top of a new feed.
void ChirpProfileViewController::appear(Stage& stage) {
  if (stage.game().world.saveAllChirpList.size() != kept_) drawFeed(stage);
}

Choice ChirpProfileViewController::choice() {
  const auto option = [this](const char* label, bool isProfile) {
    return Choice::Option{.label = label,
                          .chosen = shows_profile_ == isProfile,
                          .press = [this, isProfile](Stage&) { shows_profile_ = isProfile; }};
  };
  return {.label = "Show", .options = {option("Feed", false), option("Profile", true)}};
}

std::vector<Node> ChirpProfileViewController::feedNodes(const Game& game) {
  return {PagedList{.key = "feed",
                    .size = feed_.size(),
                    .nodeAt = [this, &game](std::size_t index) -> Node {
                      const Chirp& chirp = feed_[index];
                      return chirp.artistId == 0 ? ownPost(game, chirp) : postNode(game, chirp);
                    },
                    .pageLength = postsAtOnce},
          Button{.label = "New feed",
                 .press = [this](Stage& stage) { drawFeed(stage); },
                 .weight = Button::Weight::quiet}};
}

Page ChirpProfileViewController::view(const Game& game) {
  Page page{.title = "Chirp", .nodes = {choice()}};
  page.nodes.append_range(shows_profile_ ? profileNodes(game) : feedNodes(game));
  page.main = {{.label = "Chirp",
                .press = opens<CreateChirpMessageViewController>(),
                .price = energyPrice(chirpEnergy),
                .refusal = briefOf(chirpRefusal(game.world)),
                .name = "Write a chirp",
                .weight = Button::Weight::primary}};
  return page;
}

}  // namespace tb
