#include "screens/career_start/save_parts.h"

#include <algorithm>
#include <utility>

#include "core/format.h"
#include "core/number_style.h"
#include "core/text.h"
#include "screens/stage.h"

namespace tb {

void askToDelete(Stage& stage, std::string title, std::string message, Operation deletes) {
  using view::Button;
  stage.ask({.title = std::move(title), .message = std::move(message)},
            {{.label = "Keep it", .weight = Button::Weight::primary},
             {.label = "Delete", .press = std::move(deletes), .weight = Button::Weight::destructive}});
}

void askAboutDamage(Stage& stage, const std::string& damage, Operation plays) {
  using view::Button;
  stage.ask({.title = "This Save Is Damaged", .message = damage + "\n\nNothing was changed so far."},
            {{.label = "Keep playing", .weight = Button::Weight::primary},
             {.label = "Open it anyway", .press = std::move(plays), .weight = Button::Weight::destructive}});
}

std::string timeAgo(plist::Date then, plist::Date now) {
  constexpr double minute = 60;
  constexpr double hour = 60 * minute;
  constexpr double day = 24 * hour;
  const double seconds = now.seconds - then.seconds;
  if (!(seconds >= minute)) return "just now";
  const auto times = [seconds](double unit, const char* name) {
    return counted(static_cast<std::int64_t>(std::min(seconds / unit, 1e9)), name) + " ago";
  };
  if (seconds < hour) return times(minute, "minute");
  return seconds < day ? times(hour, "hour") : times(day, "day");
}

std::string fileSize(const Locale& locale, std::int64_t bytes) {
  constexpr std::int64_t kilobyte = 1000;
  constexpr std::int64_t megabyte = 1000 * kilobyte;
  if (bytes < megabyte) return tb::format("{} KB", std::max<std::int64_t>(bytes / kilobyte, 1));
  const std::int64_t tenths = bytes / (megabyte / 10);
  return tb::format("{}{}{} MB", plainCount(locale, tenths / 10), locale.decimalPoint, tenths % 10);
}

std::string shownCount(const Locale& locale, std::int64_t count) {
  const std::string brief = shortCount(count);
  return brief.empty() ? plainCount(locale, count) : brief;
}

}  // namespace tb
