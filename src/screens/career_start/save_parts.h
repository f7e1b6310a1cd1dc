#pragma once

// Parts of the screens about saves.

#include <cstdint>
#include <string>

#include "core/locale.h"
#include "core/plain_types.h"
#include "screens/view.h"

namespace tb {

// Asks before `deletes` runs.
void askToDelete(Stage& stage, std::string title, std::string message, Operation deletes);

// Asks whether a damaged save is played all the same. `damage` says what can't be read.
void askAboutDamage(Stage& stage, const std::string& damage, Operation plays);

// "just now", "5 minutes ago", "3 hours ago", "12 days ago". A moment to come counts as now: clocks are set.
[[nodiscard]] std::string timeAgo(plist::Date then, plist::Date now);

// "340 KB", "1.2 MB".
[[nodiscard]] std::string fileSize(const Locale& locale, std::int64_t bytes);

// A count in short form, or in full when it has none.
[[nodiscard]] std::string shownCount(const Locale& locale, std::int64_t count);

}  // namespace tb
