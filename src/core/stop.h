#pragma once

namespace tb {

// Ends the process after a programming error. The last complete state is on disk, and nothing computed from a
// wrong value is saved. `why` goes to the debug log.
[[noreturn]] void stopTheGame(const char* why);

}  // namespace tb
