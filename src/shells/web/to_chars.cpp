// Stands in for the standard library's writing of floating-point numbers, in the page's program alone (see
// double_text.h): std::format and std::to_chars end up here, because the linker prefers a function of the
// program to one of a library. The game knows doubles only; float and long double are here because
// std::format can be asked for them, and are written as the double that they convert to.

#include "shells/web/double_text.h"

#define TB_STAND_IN(Type)                                                                               \
  std::to_chars_result std::to_chars(char* first, char* last, Type value) {                             \
    return tb::writeShortest(first, last, static_cast<double>(value));                                  \
  }                                                                                                     \
  std::to_chars_result std::to_chars(char* first, char* last, Type value, std::chars_format notation) { \
    return tb::writeShortest(first, last, static_cast<double>(value), notation);                        \
  }                                                                                                     \
  std::to_chars_result std::to_chars(char* first, char* last, Type value, std::chars_format notation,   \
                                     int precision) {                                                   \
    return tb::writePrecise(first, last, static_cast<double>(value), notation, precision);              \
  }

// The nine functions that the library would bring; one left out would bring all of its own along.
TB_STAND_IN(float)
TB_STAND_IN(double)
TB_STAND_IN(long double)
