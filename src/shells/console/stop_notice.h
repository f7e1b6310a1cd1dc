#pragma once

#include <filesystem>

namespace tb::console {

// From now on, when the process stops because of a programming error, it says on standard error that the
// career in the folder is safe and how to go on. Call it once, before the Terminal is made.
void announceStops(const std::filesystem::path& folder);

}  // namespace tb::console
