#include "shells/web/save_file.h"

#include <cstdint>

namespace tb {

Bytes exportedSave(const SaveStore& store) { return plist::write(plist::Value{store.dictionary()}); }

std::string importSave(SaveStore& store, std::span<const std::byte> file) {
  const auto read = plist::read(file);
  if (!read) return "This file is damaged, or it is not a save of Top Billing.";

  // Recognizes a career by this key; any property-list dictionary could be stored.
  const auto* values = read->as<plist::Dictionary>();
  const plist::Value* started = values ? read->find("enterPlayerDetails") : nullptr;
  if (!started || !started->as<std::int64_t>()) return "There is no career in this file.";

  store.replace(*values);
  return {};
}

}  // namespace tb
