#pragma once

// Conversion between plain values and property lists. Numbers are converted leniently, because another
// program may rewrite a file with 3 for 3.0, or 1 for true. Loading and the record codec share these rules.

#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <type_traits>
#include <variant>

#include "core/property_list.h"

namespace tb {

template <class T>
concept NumberType = std::same_as<T, bool> || std::same_as<T, std::int64_t> || std::same_as<T, double>;

// The types of plain variables, record fields and elements of plain lists.
template <class T>
concept PlainType = NumberType<T> || std::same_as<T, std::string> || std::same_as<T, plist::Data> ||
                    std::same_as<T, plist::Date>;

// The number converted to another type; nothing when that is not possible:
// - an integer converts to a double, rounded to the nearest beyond 2^53;
// - a double converts to an integer when it is exactly one in the signed 64-bit range;
// - the integers 0 and 1 convert to a boolean and back; a boolean does not convert to a double.
template <NumberType To, NumberType From>
[[nodiscard]] constexpr std::optional<To> numberAs(From from) {
  if constexpr (std::same_as<To, From>) {
    return from;
  } else if constexpr (std::same_as<To, bool>) {
    return from == 0 || from == 1 ? std::optional(from == 1) : std::nullopt;
  } else if constexpr (std::same_as<From, bool>) {
    return std::same_as<To, std::int64_t> ? std::optional(static_cast<To>(from)) : std::nullopt;
  } else if constexpr (std::same_as<To, double>) {
    return static_cast<double>(from);
  } else {
    const bool inRange = from >= -0x1p63 && from < 0x1p63;
    if (!inRange || static_cast<double>(static_cast<std::int64_t>(from)) != from) return std::nullopt;
    return static_cast<std::int64_t>(from);
  }
}

// The value as a T; nothing when it has another type.
template <PlainType T>
[[nodiscard]] std::optional<T> valueAs(const plist::Value& value) {
  return std::visit(
      []<class Held>(const Held& held) -> std::optional<T> {
        if constexpr (std::same_as<Held, T>) {
          return held;
        } else if constexpr (NumberType<Held> && NumberType<T>) {
          return numberAs<T>(held);
        } else {
          return std::nullopt;
        }
      },
      value.held);
}

template <PlainType T>
[[nodiscard]] plist::Value toValue(const T& plain) {
  return plist::Value{plain};
}

}  // namespace tb
