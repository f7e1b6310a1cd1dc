#pragma once

// Careers as files: the store's dictionary as a binary property list, with a checksum of the values under a
// key of its own. Other programs open it as any property list. Slots and backups are such files, too.

#include <cstddef>
#include <expected>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/random.h"
#include "core/save_store.h"

namespace tb {

// The file's key with the checksum. It is not part of the career.
inline constexpr std::string_view checksumKey = "saveChecksum";

// For a store that is not kept, to try a save.
class ScratchPort : public StorePort {
 public:
  std::vector<StoredPiece> load() override { return {}; }
  std::expected<void, std::string> commit(std::span<const StoreChange>) override { return {}; }
};

[[nodiscard]] Bytes exportedSave(const SaveStore& store);

// The file of a career. Keeps a checksum that is among the values: a copy of a damaged save stays known as
// one.
[[nodiscard]] Bytes saveFile(plist::Dictionary values);

// A sentence about what of a slot or backup can't be read; empty when its checksum fits, or when it has none:
// older builds wrote none. Removes the checksum from the values.
[[nodiscard]] std::string takeDamage(plist::Dictionary& values, RandomSource& random);

struct ImportedSave {
  std::string refusal;  // why the file can't be brought in; empty if it was
  std::string remark;   // what the player should know of the file before using it; empty if there is nothing
};

// Replaces the store's content with the file's, which may be a binary or an XML property list. Does not
// change the store when it refuses the file.
[[nodiscard]] ImportedSave importSave(SaveStore& store, std::span<const std::byte> file);

}  // namespace tb
