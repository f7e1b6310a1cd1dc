#pragma once

// The inbox: offers and notes by e-mail, in order of arrival.

#include <cstddef>
#include <cstdint>

#include "core/game.h"
#include "core/notice.h"

namespace tb {

// A further e-mail removes the oldest one, even an open offer. Nothing else lets an offer lapse.
inline constexpr std::size_t inboxCapacity = 20;

inline constexpr double giftAmount = 1'000;  // dollars

// Appends an e-mail with this week as its date, then removes the oldest one when there are too many.
void sendEmail(Game& game, Email email);

// Notes the e-mail at `index` as the opened one in `passEmailId`, for the screen of its deal. Refused for a
// stake or a franchise without a signed agent. `index` must be in the list.
Refusal openEmail(Game& game, std::size_t index);

[[nodiscard]] bool isGift(const Email& email);

// Pays the gift and removes all e-mails with its id. Does nothing when there is none.
void claimGift(Game& game);

// Removes all e-mails.
void emptyTrash(Game& game);

// Removes the e-mail with this id from `saveAllEmailList`; does nothing when there is none.
void removeEmail(Game& game, std::int64_t id);

// The e-mail with this id; null when it was answered, removed or has lapsed.
[[nodiscard]] const Email* emailWith(const WorldState& world, std::int64_t id);

// True when the next e-mail would remove the oldest one.
[[nodiscard]] bool isInboxFull(const WorldState& world);

}  // namespace tb
