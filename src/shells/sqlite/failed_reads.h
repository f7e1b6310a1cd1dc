#pragma once

// Tells a failing disk from a damaged file. SQLite's checks report a read that the system refused as damage.

#include <string>

namespace tb::sqlite {

// Watches SQLite's reads of files while it exists. One at a time.
class FailedReads {
 public:
  FailedReads();
  ~FailedReads();
  FailedReads(const FailedReads&) = delete;
  FailedReads& operator=(const FailedReads&) = delete;

  // The system's reason for the first read that failed; empty if none did.
  [[nodiscard]] static std::string reason();
};

}  // namespace tb::sqlite
