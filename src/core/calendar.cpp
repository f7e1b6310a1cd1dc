#include "core/calendar.h"

#include <array>
#include <chrono>

#include "core/format.h"

namespace tb {

namespace {

// The Friday of a week; nothing for a week number that no year has.
std::optional<std::chrono::year_month_day> fridayOf(std::int64_t week, std::int64_t year) {
  using namespace std::chrono;
  constexpr std::int64_t weeksInTheLongestYear = 53;
  if (week < 1 || week > weeksInTheLongestYear) return std::nullopt;
  if (year < 1 || year > static_cast<int>(std::chrono::year::max())) return std::nullopt;

  const sys_days newYear = std::chrono::year{static_cast<int>(year)} / January / 1;
  const sys_days firstSunday = newYear - (weekday{newYear} - Sunday);
  return year_month_day{firstSunday + weeks{week - 1} + (Friday - Sunday)};
}

DateLabel labelOf(std::chrono::year_month_day day, const std::array<std::string, 12>& months) {
  return {.month = months[static_cast<unsigned>(day.month()) - 1],
          .dayAndYear = tb::format("{}, {}", static_cast<unsigned>(day.day()), static_cast<int>(day.year()))};
}

}  // namespace

std::optional<DateLabel> dateLabel(const Locale& locale, std::int64_t week, std::int64_t year) {
  const auto friday = fridayOf(week, year);
  if (!friday) return std::nullopt;
  return labelOf(*friday, locale.months);
}

std::string dateHeading(const Locale& locale, std::int64_t week, std::int64_t year,
                        const std::string& between) {
  const auto friday = fridayOf(week, year);
  if (!friday) return "";
  const DateLabel label = labelOf(*friday, locale.monthCapitals);
  return label.month + between + label.dayAndYear;
}

std::string twoDigits(std::int64_t number) { return (number < 10 ? "0" : "") + std::to_string(number); }

std::string numericDate(std::int64_t week, std::int64_t year) {
  const auto friday = fridayOf(week, year);
  if (!friday) return "";
  return twoDigits(static_cast<unsigned>(friday->month())) + "/" +
         twoDigits(static_cast<unsigned>(friday->day())) + "/" +
         std::to_string(static_cast<int>(friday->year()));
}

}  // namespace tb
