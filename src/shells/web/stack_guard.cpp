// The compiler library with 128-bit division was built with stack protection and needs these two symbols. The
// guard value does not have to be secret in WebAssembly.

#include <cstdint>

extern "C" {
std::uintptr_t __stack_chk_guard = 0x5bd1e995;
[[noreturn]] void __stack_chk_fail() { __builtin_trap(); }
}
