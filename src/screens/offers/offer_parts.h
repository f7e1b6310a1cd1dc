#pragma once

// Parts of the screens of e-mails and their offers.

#include <cstdint>
#include <string>
#include <vector>

#include "core/game.h"
#include "screens/stage.h"
#include "screens/view.h"

namespace tb {

[[nodiscard]] view::Picture portraitOf(const TalentAgent& agent);

// The portrait of the agent who wrote or forwarded the e-mail; none for other e-mails.
[[nodiscard]] std::vector<view::Picture> senderOf(const WorldState& world, const Email& email);

// "100% Chance + 6% Agent Bonus"; without an agent "100% Chance".
[[nodiscard]] std::string chanceWords(double chance, std::int64_t agentBonus);

// The meter of a negotiation's chance, up to 100.
[[nodiscard]] view::Meter chanceMeter(double chance, std::int64_t agentBonus);

// Declines an offer: removes its e-mail and closes the screen.
[[nodiscard]] view::Button declineButton(std::string label, std::int64_t emailId);

// The page of an offer that was answered or has lapsed.
[[nodiscard]] view::Page offerIsGone(std::string title);

}  // namespace tb
