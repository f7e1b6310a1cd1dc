#include "core/calendar.h"

#include <chrono>
#include <format>

#include "core/text.h"

namespace tb {

std::optional<DateLabel> dateLabel(const Locale& locale, std::int64_t week, std::int64_t year) {
  using namespace std::chrono;
  constexpr std::int64_t weeksInTheLongestYear = 53;
  if (week < 1 || week > weeksInTheLongestYear) return std::nullopt;
  if (year < 1 || year > static_cast<int>(std::chrono::year::max())) return std::nullopt;

  const sys_days new_year = std::chrono::year{static_cast<int>(year)} / January / 1;
  const sys_days first_sunday = new_year - (weekday{new_year} - Sunday);
  const year_month_day friday{first_sunday + weeks{week - 1} + (Friday - Sunday)};
  const unsigned month = static_cast<unsigned>(friday.month());
  return DateLabel{.month = locale.months[month - 1],
                   .dayAndYear = std::format("{}, {}", static_cast<unsigned>(friday.day()),
                                             static_cast<int>(friday.year()))};
}

std::string dateHeading(const Locale& locale, std::int64_t week, std::int64_t year,
                        const std::string& between) {
  const auto label = dateLabel(locale, week, year);
  return label ? upperCase(label->month) + between + label->dayAndYear : "";
}

}  // namespace tb
