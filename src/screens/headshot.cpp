#include "screens/headshot.h"

#include <algorithm>
#include <span>

#include "core/format.h"

namespace tb {

namespace {

constexpr std::size_t longestName = 64;

}  // namespace

std::string headshotName(bool isMale, int number) {
  return tb::format("headshot_{} ({}).png", isMale ? "m" : "f", number);
}

Image headshotImage(const std::string& name) {
  const auto bytes = std::as_bytes(std::span(name));
  return {.bytes = Bytes(bytes.begin(), bytes.end())};
}

std::string headshotIn(const Image& image) {
  const Bytes& bytes = image.bytes;
  const auto isLetter = [](std::byte byte) { return byte >= std::byte{0x20} && byte < std::byte{0x7F}; };
  if (bytes.size() > longestName || !std::ranges::all_of(bytes, isLetter)) return "";
  std::string name;
  for (const std::byte byte : bytes) name += static_cast<char>(byte);
  return name;
}

view::Picture headshotPicture(const std::string& name, std::int64_t age) {
  return {.kind = view::PictureKind::avatar, .name = name, .age = static_cast<int>(age)};
}

view::Picture performerPicture(const WorldState& world) {
  const std::string chosen = headshotIn(world.headshotImage);
  return headshotPicture(chosen.empty() ? headshotName(world.isMale, 1) : chosen, world.ageCount);
}

}  // namespace tb
