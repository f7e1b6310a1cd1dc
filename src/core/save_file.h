#pragma once

// Careers as files: the store's dictionary as a binary property list, with a checksum of the values under a
// key of its own. Other programs open it as any property list.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "core/save_store.h"

namespace tb {

// The file's key with the checksum. It is not part of the career.
inline constexpr std::string_view checksumKey = "saveChecksum";

[[nodiscard]] Bytes exportedSave(const SaveStore& store);

struct ImportedSave {
  std::string refusal;  // why the file can't be brought in; empty if it was
  std::string remark;   // what the player should know of the file before using it; empty if there is nothing
};

// Replaces the store's content with the file's, which may be a binary or an XML property list. Does not
// change the store when it refuses the file.
[[nodiscard]] ImportedSave importSave(SaveStore& store, std::span<const std::byte> file);

}  // namespace tb
