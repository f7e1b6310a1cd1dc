#pragma once

// A whole game as one file: the dictionary of the store as a binary property list, for the player to keep
// and to bring back, on this device or another.

#include <cstddef>
#include <span>
#include <string>

#include "core/save_store.h"

namespace tb {

[[nodiscard]] Bytes exportedSave(const SaveStore& store);

// Replaces all that the store holds by what the file holds. Answers with a sentence for the player and leaves
// the store as it is when the file is no save of the game; an empty text says that it was done.
[[nodiscard]] std::string importSave(SaveStore& store, std::span<const std::byte> file);

}  // namespace tb
