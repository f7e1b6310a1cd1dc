#pragma once

// What crosses the boundary between the page and the game, apart from plain numbers: texts, the pieces of the
// store, the changes of a commit. One message is a row of values with no names, read in the order in which
// they were written: numbers in little-endian, a text or bytes as a 32-bit length and then its bytes. The
// page's side is web/src/runtime/message.ts.

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/locale.h"
#include "core/save_store.h"

namespace tb {

class MessageWriter {
 public:
  void number(std::uint32_t value);
  void wideNumber(std::int64_t value);
  void bytes(std::span<const std::byte> value);
  void text(std::string_view value);

  [[nodiscard]] const Bytes& message() const { return message_; }

 private:
  Bytes message_;
};

// Both sides are built together, so a message that ends early is a fault of the program and stops it.
class MessageReader {
 public:
  explicit MessageReader(std::span<const std::byte> message) : rest_(message) {}

  std::uint32_t number();
  std::int64_t wideNumber();
  Bytes bytes();
  std::string text();

 private:
  std::span<const std::byte> take(std::size_t size);

  std::span<const std::byte> rest_;
};

// A number of pieces, then of each: key, shape, piece number, bytes.
[[nodiscard]] std::vector<StoredPiece> readPieces(std::span<const std::byte> message);

// A number of changes, then of each: kind, key, shape, piece number, bytes.
[[nodiscard]] Bytes writeChanges(std::span<const StoreChange> changes);

// The fields of Locale in their order, all as texts; "1" for a sign before the amount.
[[nodiscard]] Locale readLocale(std::span<const std::byte> message);

}  // namespace tb
