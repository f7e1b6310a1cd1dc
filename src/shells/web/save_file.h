#pragma once

// Export and import of a career as a file: the store's dictionary as a binary property list.

#include <cstddef>
#include <span>
#include <string>

#include "core/save_store.h"

namespace tb {

[[nodiscard]] Bytes exportedSave(const SaveStore& store);

// Replaces the store's contents by the file's. Returns an empty text on success; for a file that is not a
// save of the game, returns a message for the player and does not change the store.
[[nodiscard]] std::string importSave(SaveStore& store, std::span<const std::byte> file);

}  // namespace tb
