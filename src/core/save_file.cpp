#include "core/save_file.h"

#include <algorithm>
#include <cstdint>

#include "core/load_world.h"
#include "core/property_list_xml.h"
#include "core/stored_value.h"

namespace tb {

namespace {

// FNV-1a. Notices every change of a single byte; nobody is kept from changing a save on purpose.
std::uint64_t hash(std::span<const std::byte> bytes) {
  std::uint64_t hash = 0xcbf29ce484222325;
  for (const std::byte byte : bytes) hash = (hash ^ std::to_integer<std::uint64_t>(byte)) * 0x100000001b3;
  return hash;
}

// Does not depend on the order of the keys, because other programs sort them in their own way.
std::string checksum(plist::Dictionary values) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::ranges::sort(values, {}, &plist::Dictionary::value_type::first);
  const std::uint64_t sum = hash(plist::write(plist::Value{std::move(values)}));
  std::string text;
  for (int shift = 60; shift >= 0; shift -= 4) text += digits[sum >> shift & 0xF];
  return text;
}

void removeChecksum(plist::Dictionary& values) {
  std::erase_if(values, [](const auto& entry) { return entry.first == checksumKey; });
}

std::string remarkOn(const plist::Dictionary& values, const std::string& stated) {
  if (stated.empty()) return "This file has no checksum, so it is not known whether it is complete.";
  if (stated == checksum(values)) return "";
  return "This save was damaged or changed after it was written: its checksum does not fit.";
}

}  // namespace

Bytes exportedSave(const SaveStore& store) {
  plist::Dictionary values = store.dictionary();
  removeChecksum(values);
  return saveFile(std::move(values));
}

Bytes saveFile(plist::Dictionary values) {
  if (!std::ranges::contains(values, checksumKey, &plist::Dictionary::value_type::first)) {
    std::string sum = checksum(values);
    values.emplace_back(checksumKey, plist::Value{std::move(sum)});
  }
  return plist::write(plist::Value{std::move(values)});
}

std::string takeDamage(plist::Dictionary& values, RandomSource& random) {
  const auto stated = storedValue<std::string>(values, checksumKey);
  removeChecksum(values);
  std::string remark = stated.empty() ? "" : remarkOn(values, stated);
  if (remark.empty()) return remark;
  ScratchPort port;
  SaveStore store(port);
  store.replace(values);
  Game game{.store = store, .random = random};
  const auto damage = describe(loadWorld(game));
  return remark + "\n\n" + damage.value_or("All of the career can still be read.");
}

ImportedSave importSave(SaveStore& store, std::span<const std::byte> file) {
  auto read = plist::isXml(file) ? plist::readXml(file) : plist::read(file);
  if (!read) return {.refusal = "This file is damaged, or it is not a save of Top Billing.", .remark = {}};

  // Recognizes a career by this key; any property-list dictionary could be stored.
  const plist::Value* const started = read->find("enterPlayerDetails");
  if (started == nullptr || !valueAs<std::int64_t>(*started)) {
    return {.refusal = "There is no career in this file.", .remark = {}};
  }
  auto& values = std::get<plist::Dictionary>(read->held);
  const auto stated = storedValue<std::string>(values, checksumKey);
  removeChecksum(values);
  std::string remark = remarkOn(values, stated);
  store.replace(values);
  return {.refusal = {}, .remark = std::move(remark)};
}

}  // namespace tb
