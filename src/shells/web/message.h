#pragma once

// Messages between the page and the game: texts, the pieces of the store, the changes of a commit. A message
// is a sequence of unnamed values: little-endian numbers, and texts or bytes as a 32-bit length followed by
// the bytes. The page's implementation is web/src/runtime/message.ts.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "core/documents.h"
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

// Reads empty values after the end of a message that is too short.
class MessageReader {
 public:
  explicit MessageReader(std::span<const std::byte> message) : rest_(message) {}

  std::uint32_t number();
  std::int64_t wideNumber();
  Bytes bytes();
  std::string text();

  // The message ended before a value, or fail() was called.
  [[nodiscard]] bool isBad() const { return is_bad_; }
  void fail() { is_bad_ = true; }

 private:
  std::span<const std::byte> take(std::size_t size);

  std::span<const std::byte> rest_;
  bool is_bad_ = false;
};

// These return nothing for a message of another form. Both sides are built together, so that is a programming
// error.

// The number of pieces, then for each: key, shape, piece number, bytes.
[[nodiscard]] std::optional<std::vector<StoredPiece>> readPieces(std::span<const std::byte> message);

// The number of changes, then for each: kind, key, shape, piece number, bytes.
[[nodiscard]] Bytes writeChanges(std::span<const StoreChange> changes);

// The folder and the name of a document.
[[nodiscard]] Bytes writeDocumentPlace(std::string_view folder, std::string_view name);

// A document's place, size, time of change (milliseconds since 1970), head (empty for a damaged document) and
// content.
[[nodiscard]] Bytes writeDocument(std::string_view folder, const DocumentSummary& summary,
                                  std::span<const std::byte> content);

// The number of documents, then for each: what writeDocument writes but the content. Each with its folder.
[[nodiscard]] std::optional<std::vector<std::pair<std::string, DocumentSummary>>> readDocuments(
    std::span<const std::byte> message);

// The fields of Locale in order, all as texts; "1" if the symbol is before the amount.
[[nodiscard]] std::optional<Locale> readLocale(std::span<const std::byte> message);

}  // namespace tb
