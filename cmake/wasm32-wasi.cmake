# WebAssembly with clang 19, its own libc++ and wasi-libc. CMake knows no such platform, hence Generic; and a
# program for it can't be linked by CMake's own checks before the reactor's flags are there.
set(CMAKE_SYSTEM_NAME Generic)
set(CMAKE_SYSTEM_PROCESSOR wasm32)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

set(CMAKE_CXX_COMPILER clang++-19)
set(CMAKE_CXX_COMPILER_TARGET wasm32-wasi)

set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Without the library's locales, which the page never asks for (currency signs and separators are the game's own,
# core/locale.h), and without the names of types at run time: nothing reads them, and both cost bytes to fetch.
set(CMAKE_CXX_FLAGS_INIT "-D_LIBCPP_HAS_NO_LOCALIZATION -fno-rtti")
