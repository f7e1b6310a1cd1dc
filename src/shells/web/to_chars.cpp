// Replaces the standard library's floating-point std::to_chars in the web build (see double_text.h): the
// linker prefers a function of the program to one of a library. The game only uses double; float and long
// double are converted to double.

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

// All nine overloads: a missing one would link the library's implementation.
TB_STAND_IN(float)
TB_STAND_IN(double)
TB_STAND_IN(long double)
