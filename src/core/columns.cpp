#include "core/columns.h"

#include <utility>

namespace tb {

std::string columnKey(std::string_view list, std::string_view field) {
  return std::string(list) + "." + std::string(field);
}

void addPiece(Stretches& stretches, std::int64_t piece, std::size_t first, std::size_t count) {
  const auto at =
      stretches.try_emplace(stretches.end(), stretchOf(piece), ListPart{.first = first, .count = 0});
  at->second.count += count;
}

std::optional<plist::Array> readStretch(std::span<const std::byte> stored, const ListPart& part) {
  auto read = plist::read(stored);
  auto* const values = read ? std::get_if<plist::Array>(&read->held) : nullptr;
  if (values == nullptr || values->size() != part.count) return std::nullopt;
  return std::move(*values);
}

}  // namespace tb
