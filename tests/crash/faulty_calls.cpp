#include "tests/crash/faulty_calls.h"

#include <cerrno>
#include <cstdarg>
#include <cstddef>
#include <dlfcn.h>
#include <sys/types.h>

// <fcntl.h> and <unistd.h> declare what is defined here.

namespace tb::crash {

namespace {

bool isActive = false;
Fault kind = Fault::passing;
int callsLeft = 0;
bool failed = false;

// Whether this call fails. Then errno says why.
bool fails(bool writes) {
  if (!isActive || (kind == Fault::fullDisk && !writes)) return false;
  callsLeft -= 1;
  if (callsLeft > 0 || (callsLeft < 0 && kind == Fault::passing)) return false;
  failed = true;
  errno = kind == Fault::fullDisk ? ENOSPC : EIO;
  return true;
}

template <class Call>
Call* original(const char* name, Call*& known) {
  if (known == nullptr) known = reinterpret_cast<Call*>(dlsym(RTLD_NEXT, name));
  return known;
}

}  // namespace

FaultyCalls::FaultyCalls(Fault fault, int nth) {
  kind = fault;
  callsLeft = nth;
  failed = false;
  isActive = true;
}

FaultyCalls::~FaultyCalls() { isActive = false; }

bool FaultyCalls::hasFailed() { return failed; }

}  // namespace tb::crash

using tb::crash::fails;
using tb::crash::original;

// Defines a function of the C library that returns -1 when it fails.
#define FAULTY(Result, name, writes, parameters, ...)                \
  extern "C" Result name parameters {                                \
    static Result(*known) parameters = nullptr;                      \
    return fails(writes) ? -1 : original(#name, known)(__VA_ARGS__); \
  }

struct stat;

FAULTY(ssize_t, read, false, (int file, void* bytes, std::size_t size), file, bytes, size)
FAULTY(ssize_t, pread, false, (int file, void* bytes, std::size_t size, off_t at), file, bytes, size, at)
FAULTY(ssize_t, pread64, false, (int file, void* bytes, std::size_t size, off_t at), file, bytes, size, at)
FAULTY(ssize_t, write, true, (int file, const void* bytes, std::size_t size), file, bytes, size)
FAULTY(ssize_t, pwrite, true, (int file, const void* bytes, std::size_t size, off_t at), file, bytes, size,
       at)
FAULTY(ssize_t, pwrite64, true, (int file, const void* bytes, std::size_t size, off_t at), file, bytes, size,
       at)
FAULTY(int, fsync, true, (int file), file)
FAULTY(int, fdatasync, true, (int file), file)
FAULTY(int, ftruncate, true, (int file, off_t size), file, size)
FAULTY(int, ftruncate64, true, (int file, off_t size), file, size)
FAULTY(int, rename, true, (const char* from, const char* to), from, to)
FAULTY(int, unlink, true, (const char* path), path)
FAULTY(int, remove, true, (const char* path), path)
FAULTY(int, mkdir, true, (const char* path, mode_t mode), path, mode)
FAULTY(int, stat, false, (const char* path, struct stat* facts), path, facts)
FAULTY(int, stat64, false, (const char* path, struct stat* facts), path, facts)
FAULTY(int, lstat, false, (const char* path, struct stat* facts), path, facts)
FAULTY(int, lstat64, false, (const char* path, struct stat* facts), path, facts)
FAULTY(int, fstat, false, (int file, struct stat* facts), file, facts)
FAULTY(int, fstat64, false, (int file, struct stat* facts), file, facts)

#define FAULTY_OPEN(name)                                                 \
  extern "C" int name(const char* path, int flags, ...) {                 \
    static int (*known)(const char*, int, ...) = nullptr;                 \
    va_list rest;                                                         \
    va_start(rest, flags);                                                \
    const auto mode = va_arg(rest, mode_t);                               \
    va_end(rest);                                                         \
    return fails(false) ? -1 : original(#name, known)(path, flags, mode); \
  }

FAULTY_OPEN(open)
FAULTY_OPEN(open64)

extern "C" void* opendir(const char* path) {
  static void* (*known)(const char*) = nullptr;
  return fails(false) ? nullptr : original("opendir", known)(path);
}
