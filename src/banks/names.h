#pragma once

// The names of invented people.

#include <string>

#include "core/random.h"

namespace tb {

// A director, a writer: a first name of either sex and a surname.
[[nodiscard]] std::string inventedName(RandomSource& random);

// A man or a woman by name: a character, a rival, an agent.
[[nodiscard]] std::string inventedName(RandomSource& random, bool isMale);

}  // namespace tb
