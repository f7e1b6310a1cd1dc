#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/locale.h"

namespace tb {

// The Friday of a week as two texts: "January" and "2, 2026".
struct DateLabel {
  std::string month;
  std::string dayAndYear;
};

// The date label of a week (1 and up) of a year. Weeks begin on a Sunday and week 1 is the one that holds
// the first of January. Nothing for a week that no year has: below 1 or above 53.
[[nodiscard]] std::optional<DateLabel> dateLabel(const Locale& locale, std::int64_t week, std::int64_t year);

// The month in capitals, `between`, the day and year; empty when there is no such date.
[[nodiscard]] std::string dateHeading(const Locale& locale, std::int64_t week, std::int64_t year,
                                      const std::string& between);

}  // namespace tb
