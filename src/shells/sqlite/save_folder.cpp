#include "shells/sqlite/save_folder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <pwd.h>
#include <sys/file.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace tb {

namespace {

OpenFailure cannotWrite(const std::filesystem::path& folder, const std::string& reason) {
  return {OpenFailure::Kind::cannotWrite,
          "Top Billing cannot keep its saves in " + folder.string() + ": " + reason + "."};
}

// The base directory for user data. A relative XDG_DATA_HOME is invalid and is ignored.
std::filesystem::path dataHome() {
  if (const char* const set = std::getenv("XDG_DATA_HOME"); set != nullptr && set[0] == '/') return set;
  const char* home = std::getenv("HOME");
  if (home == nullptr || home[0] == '\0') {
    const passwd* const user = getpwuid(getuid());
    home = user != nullptr ? user->pw_dir : "/";
  }
  return std::filesystem::path(home) / ".local" / "share";
}

}  // namespace

std::expected<std::filesystem::path, OpenFailure> saveFolder() {
  std::filesystem::path folder = dataHome() / "top-billing";
  std::error_code error;
  const bool created = std::filesystem::create_directories(folder, error);
  if (created) std::filesystem::permissions(folder, std::filesystem::perms::owner_all, error);
  if (error) return std::unexpected(cannotWrite(folder, error.message()));
  return folder;
}

std::expected<FolderLock, OpenFailure> FolderLock::take(const std::filesystem::path& folder) {
  const std::filesystem::path path = folder / "career.lock";
  const int file = open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
  if (file < 0) return std::unexpected(cannotWrite(folder, std::strerror(errno)));
  FolderLock lock(file);
  if (flock(file, LOCK_EX | LOCK_NB) == 0) return lock;
  if (errno != EWOULDBLOCK) return std::unexpected(cannotWrite(folder, std::strerror(errno)));
  return std::unexpected(OpenFailure{OpenFailure::Kind::alreadyOpen,
                                     "Top Billing is already open in another window. Close it there first."});
}

FolderLock::FolderLock(FolderLock&& other) noexcept : file_(std::exchange(other.file_, -1)) {}

FolderLock::~FolderLock() {
  if (file_ >= 0) close(file_);
}

}  // namespace tb
