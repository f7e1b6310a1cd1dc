#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "core/locale.h"

namespace tb {

// Of the game's calendar.
inline constexpr std::int64_t weeksPerYear = 52;

// The Friday of a week as two texts: "January" and "2, 2026".
struct DateLabel {
  std::string month;
  std::string dayAndYear;
};

// The date label of a week (1 to 53) of a year. Weeks begin on a Sunday, and week 1 contains January 1.
// Nothing for a week outside that range.
[[nodiscard]] std::optional<DateLabel> dateLabel(const Locale& locale, std::int64_t week, std::int64_t year);

// The month in capitals, `between`, then the day and year; empty when there is no such date.
[[nodiscard]] std::string dateHeading(const Locale& locale, std::int64_t week, std::int64_t year,
                                      const std::string& between);

// A part of a date or a time, from 0 to 99: "07".
[[nodiscard]] std::string twoDigits(std::int64_t number);

// The Friday in digits, as month, day and year: "01/02/2026"; empty when there is no such date.
[[nodiscard]] std::string numericDate(std::int64_t week, std::int64_t year);

}  // namespace tb
