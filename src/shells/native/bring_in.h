#pragma once

// Careers as files, for native programs: writing one, and taking one into play.

#include <expected>
#include <filesystem>
#include <span>
#include <string>

#include "core/documents.h"
#include "core/random.h"
#include "core/save_store.h"

namespace tb {

// Why it could not be written, in a sentence.
std::expected<void, std::string> writeCareerFile(const SaveStore& store, const std::filesystem::path& file);

// The content of a file that can be a career, or why not.
[[nodiscard]] std::expected<Bytes, std::string> readCareerFile(const std::filesystem::path& file);

// The question to the player: whose career is in the file, what of it is damaged, and what it replaces. The
// error is why the file can't be brought in. Changes nothing.
[[nodiscard]] std::expected<std::string, std::string> questionAbout(std::span<const std::byte> file,
                                                                    const SaveStore& inPlay,
                                                                    RandomSource& random);

// Replaces the store's career by the file's. The replaced one is backed up before; the error is why nothing
// was changed.
std::expected<void, std::string> bringIn(std::span<const std::byte> file, SaveStore& store,
                                         Documents& documents, plist::Date now);

}  // namespace tb
