#pragma once

// Latch, the dating app: swiping, the first line to a match, and the conversation that ends in a relationship
// or a rejection. People on the cards are in life/latch_people.h.

#include <cstdint>
#include <optional>
#include <string>

#include "core/game.h"
#include "core/notice.h"
#include "life/separation.h"

namespace tb {

inline constexpr std::int64_t swipeEnergy = 3;  // points

enum class Swipe : std::uint8_t { left, right };

// Why the player cannot swipe: not enough energy.
[[nodiscard]] Refusal swipeRefusal(const WorldState& world, Swipe side);

// The chance in percent, 0 to 100, that this person matches with the player.
[[nodiscard]] double matchChance(const WorldState& world, const Matches& person);

// Passes on the card. Takes the energy and deals the next card.
[[nodiscard]] Refusal swipeLeft(Game& game);

// Likes the card: the same, after a roll for a match. `match` is the person if it is one. There must be a
// card.
struct Liked {
  Refusal refusal;
  std::optional<Matches> match;
};
[[nodiscard]] Liked swipeRight(Game& game);

// A first line to send.
[[nodiscard]] std::string suggestedLine(Game& game);

// Writes to a match, who joins `saveAllMatchesList` with a reply. An empty text becomes a line of the game's.
// Returns the message about it.
[[nodiscard]] Notice sendFirstLine(Game& game, const Matches& match, const std::string& text);

// What opening a row of the list of matches comes to.
struct Opened {
  bool isConversation = false;  // the row's conversation opens
  Refusal notice;               // from the partner
  bool isFoundOut = false;      // the notice is about a message to somebody else
  std::optional<Separation> separation;
};

// Whether pressing the row can do anything: a former partner's does nothing for a single player.
[[nodiscard]] bool canOpenMatch(const WorldState& world, std::size_t row);

// Opens a match. With a partner there is no conversation: writing to somebody else can be found out, which
// hurts the relationship or ends it.
[[nodiscard]] Opened openMatch(Game& game, std::size_t row);

// The second half of a conversation with the match at `selectedMatchIndex`.
struct Conversation {
  std::string followUp;  // the player's
  std::string reply;     // the match's
};
[[nodiscard]] Conversation conversationStep(Game& game);

// Ends the conversation with the match at `selectedMatchIndex`: the two become a couple, which the partner
// posts about, or the match is removed.
void finishConversation(Game& game);

}  // namespace tb
