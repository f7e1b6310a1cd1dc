#include "core/documents.h"

#include <array>

namespace tb {

namespace {

constexpr std::array<std::string_view, 8> headKeys = {
    "myName",        "yearNumber",         "saveNetworth",          "totalFans",
    "saveBoxOffice", "totalCashAvailable", "weekNumberForTracking", "enterPlayerDetails"};

}  // namespace

std::optional<plist::Dictionary> documentHead(std::span<const std::byte> document) {
  auto head = plist::readEntries(document, headKeys);
  if (!head) return std::nullopt;
  return *std::move(head);
}

}  // namespace tb
