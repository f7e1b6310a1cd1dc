#pragma once

namespace tb {

// Ends the process: an input that no rule may produce. The last complete state is on disk, so nothing that
// was computed from a wrong number is ever saved. `why` goes to the debug log.
[[noreturn]] void stopTheGame(const char* why);

}  // namespace tb
