#pragma once

// The lawful values of a variable or a record's field: what the rules can write. They are said in the row of
// the variable and beside the record's fields, and kept when a save is loaded (core/lawful.h), because rules
// rely on them.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace tb {

struct Range {
  enum class Kind : std::uint8_t {
    nearest,  // a number outside is brought to the nearest lawful one
    id,       // no two records of a list have the same, or the later one can't be used
    choice,   // the number says what a record is: there is no nearest one, and the record can't be used
  };

  // Beyond every figure of a career, and small enough that rules can add and multiply a few of them.
  static constexpr double farthest = 1e13;

  Kind kind = Kind::nearest;
  double least = -farthest;     // of a number, and of each number of a list
  double most = farthest;       // of these, and of the length of a text in bytes
  std::size_t fewest = 0;       // elements of a list
  std::string_view parallel{};  // the list with the same length, by key or field
};

// From `least` to `most`.
consteval Range between(double least, double most) { return {.least = least, .most = most}; }
consteval Range atLeast(double least) { return {.least = least}; }

// A number that identifies a record.
consteval Range uniqueId() { return {.kind = Range::Kind::id}; }

// One of the integers from `first` to `last`.
consteval Range oneOf(double first, double last) {
  return {.kind = Range::Kind::choice, .least = first, .most = last};
}

// A list that is never empty.
consteval Range notEmpty() { return {.fewest = 1}; }

// A list that has the length of another one.
consteval Range asLongAs(std::string_view other) { return {.parallel = other}; }

consteval Range textUpTo(double bytes) { return {.most = bytes}; }

// Texts and lists are as long as the game can use, and no longer.
inline constexpr std::size_t longestText = 20'000;       // bytes
inline constexpr std::size_t longestData = 4'000'000;    // bytes
inline constexpr std::size_t longestNumberList = 5'000;  // elements

}  // namespace tb
