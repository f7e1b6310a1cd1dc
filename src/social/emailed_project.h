#pragma once

// The projects that e-mails offer. Each kind of offer keeps them in a list of its own.

#include <cstdint>

#include "core/game.h"

namespace tb {

using EmailedProjects = List<EmailedProject> WorldState::*;

// The project that was drawn for the e-mail; null when none was, or when the e-mail is gone.
[[nodiscard]] const Audition* emailedProject(const WorldState& world, EmailedProjects list,
                                             std::int64_t emailId);

// Removes the e-mail and its project.
void closeEmailedProject(Game& game, EmailedProjects list, std::int64_t emailId);

}  // namespace tb
