#pragma once

// The folder for saves on Linux, and its lock against a second process.

#include <cstdint>
#include <expected>
#include <filesystem>
#include <string>

namespace tb {

// Why a career could not be opened. Existing files have not been changed.
struct OpenFailure {
  enum class Kind : std::uint8_t {
    alreadyOpen,   // another process has the file
    newerVersion,  // written by a later version of the game
    cannotWrite,   // missing folder or permission, or a full disk
    diskError,     // a failed read, which says nothing about the file
  };
  Kind kind;
  std::string message;  // for the player
};

// $XDG_DATA_HOME/top-billing, or ~/.local/share/top-billing when that is not set. Created if missing,
// readable by the user only.
[[nodiscard]] std::expected<std::filesystem::path, OpenFailure> saveFolder();

// Locks a folder of saves for this process, until the process ends in any way.
class FolderLock {
 public:
  [[nodiscard]] static std::expected<FolderLock, OpenFailure> take(const std::filesystem::path& folder);
  FolderLock(FolderLock&& other) noexcept;
  FolderLock& operator=(FolderLock&&) = delete;
  ~FolderLock();

 private:
  explicit FolderLock(int file) : file_(file) {}

  int file_;
};

}  // namespace tb
