#pragma once

// The difference between two versions of a stored piece: what gives the earlier version back from the later
// one. Versions of a property list have most of their bytes in common, behind a change at other places.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "core/plain_types.h"

namespace tb {

// Appends a number of any sign; small ones take few bytes.
void putNumber(Bytes& bytes, std::int64_t number);
// Removes a number from the front; nothing when it is cut off.
[[nodiscard]] std::optional<std::int64_t> takeNumber(std::span<const std::byte>& bytes);
// Removes that many bytes from the front; nothing when there are fewer, or for a negative count.
[[nodiscard]] std::optional<std::span<const std::byte>> takeBytes(std::span<const std::byte>& bytes,
                                                                  std::int64_t count);

// The same on every machine.
[[nodiscard]] std::uint32_t checksumOf(std::span<const std::byte> bytes);

// What gives `earlier` back from `later`. Takes time linear in both.
[[nodiscard]] Bytes deltaTo(std::span<const std::byte> earlier, std::span<const std::byte> later);

// The earlier version; nothing when the delta is damaged or was made with another later version.
[[nodiscard]] std::optional<Bytes> earlierOf(std::span<const std::byte> later,
                                             std::span<const std::byte> delta);

}  // namespace tb
