#pragma once

// Makes the system's calls on files fail. The program's own functions take the place of those of the C
// library, for SQLite and the standard library, too.

#include <cstdint>

namespace tb::crash {

enum class Fault : std::uint8_t {
  passing,   // one call fails
  lasting,   // this call and all later ones
  fullDisk,  // this call and all later ones that write, for lack of room; reads succeed
};

// While it exists, the `nth` call fails, counting from 1. Only calls that the fault concerns are counted. One
// at a time.
class FaultyCalls {
 public:
  FaultyCalls(Fault fault, int nth);
  ~FaultyCalls();
  FaultyCalls(const FaultyCalls&) = delete;
  FaultyCalls& operator=(const FaultyCalls&) = delete;

  // Whether a call has failed.
  [[nodiscard]] static bool hasFailed();
};

}  // namespace tb::crash
