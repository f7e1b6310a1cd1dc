#pragma once

// Names of fictional people.

#include <string>

#include "core/random.h"

namespace tb {

// A random name, for a director or a writer.
[[nodiscard]] std::string inventedName(RandomSource& random);

// A random name by gender, for a character, a rival or an agent.
[[nodiscard]] std::string inventedName(RandomSource& random, bool isMale);

}  // namespace tb
