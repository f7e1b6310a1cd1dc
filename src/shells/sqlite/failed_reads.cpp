#include "shells/sqlite/failed_reads.h"

#include <cerrno>
#include <cstring>
#include <sqlite3.h>
#include <sys/types.h>
#include <unistd.h>

namespace tb::sqlite {

namespace {

int failure = 0;  // errno of the first failed read

// SQLite keeps the system calls it uses in a table. Its builds read with one of these three.
using Call = sqlite3_syscall_ptr;
using Read = ssize_t (*)(int, void*, size_t);
using ReadAt = ssize_t (*)(int, void*, size_t, off_t);
Call replacedRead = nullptr;
Call replacedReadAt = nullptr;
Call replacedReadAt64 = nullptr;

ssize_t noted(ssize_t count) {
  if (count < 0 && errno != EINTR && failure == 0) failure = errno;
  return count;
}

ssize_t watchedRead(int file, void* bytes, size_t size) {
  return noted(reinterpret_cast<Read>(replacedRead)(file, bytes, size));
}

template <Call& Replaced>
ssize_t watchedReadAt(int file, void* bytes, size_t size, off_t offset) {
  return noted(reinterpret_cast<ReadAt>(Replaced)(file, bytes, size, offset));
}

// Returns the replaced call. Does nothing for a call that this build of SQLite does not use.
Call replace(const char* name, Call call) {
  sqlite3_vfs* const system = sqlite3_vfs_find(nullptr);
  Call const replaced = system->xGetSystemCall(system, name);
  if (replaced != nullptr) system->xSetSystemCall(system, name, call);
  return replaced;
}

}  // namespace

FailedReads::FailedReads() {
  failure = 0;
  replacedRead = replace("read", reinterpret_cast<Call>(&watchedRead));
  replacedReadAt = replace("pread", reinterpret_cast<Call>(&watchedReadAt<replacedReadAt>));
  replacedReadAt64 = replace("pread64", reinterpret_cast<Call>(&watchedReadAt<replacedReadAt64>));
}

FailedReads::~FailedReads() {
  replace("read", replacedRead);
  replace("pread", replacedReadAt);
  replace("pread64", replacedReadAt64);
}

std::string FailedReads::reason() { return failure == 0 ? "" : std::strerror(failure); }

}  // namespace tb::sqlite
