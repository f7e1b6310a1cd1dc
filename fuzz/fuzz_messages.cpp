// Reads arbitrary bytes as each message from the page. Pieces that can be read become a store.

#include <cstddef>
#include <cstdint>

#include "shells/web/message.h"
#include "tests/memory_port.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const auto message = std::as_bytes(std::span(data, size));
  static_cast<void>(tb::readLocale(message));
  static_cast<void>(tb::readDocuments(message));
  const auto pieces = tb::readPieces(message);
  if (!pieces) return 0;
  tb::test::MemoryPort port;
  for (const tb::StoredPiece& piece : *pieces) port.pieces[{piece.key, piece.piece}] = piece;
  tb::SaveStore store(port);
  static_cast<void>(store.dictionary());
  static_cast<void>(store.commit());
  return 0;
}
