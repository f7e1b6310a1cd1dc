#pragma once

// Where a Linux player's saves live, and the lock that keeps a second window out of them.

#include <cstdint>
#include <expected>
#include <filesystem>
#include <string>

namespace tb {

// Why a career could not be opened. Whatever the reason, nothing that was there has been touched.
struct OpenFailure {
  enum class Kind : std::uint8_t {
    alreadyOpen,   // another window, or another program, has the file
    newerVersion,  // a later version of the game wrote the file
    cannotWrite,   // no such folder, no right to write there, a full disk
  };
  Kind kind;
  std::string message;  // plain sentences for the player
};

// $XDG_DATA_HOME/top-billing, or ~/.local/share/top-billing where that is not set; created when missing, for
// the player's eyes only.
[[nodiscard]] std::expected<std::filesystem::path, OpenFailure> saveFolder();

// Holds a folder of saves for this process. The lock ends with the process, however that ends.
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
