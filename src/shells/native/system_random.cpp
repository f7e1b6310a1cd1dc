#include "shells/native/system_random.h"

#include <cerrno>
#include <sys/random.h>

#include "core/stop.h"

namespace tb {

std::uint64_t SystemRandom::next() {
  std::uint64_t word = 0;
  for (;;) {
    // So few bytes come all at once; only the wait for the first entropy after a boot can be interrupted.
    const ssize_t got = getrandom(&word, sizeof word, 0);
    if (got == static_cast<ssize_t>(sizeof word)) return word;
    if (got < 0 && errno != EINTR) stopTheGame("the system gives no random numbers");
  }
}

}  // namespace tb
