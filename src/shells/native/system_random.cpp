#include "shells/native/system_random.h"

#include <cerrno>
#include <sys/random.h>

#include "core/stop.h"

namespace tb {

std::uint64_t SystemRandom::next() {
  if (used_ == words_.size()) fill();
  return words_[used_++];
}

void SystemRandom::fill() {
  for (;;) {
    // A request of up to 256 bytes is not split; only the initial wait for entropy after boot can be
    // interrupted.
    const ssize_t got = getrandom(words_.data(), sizeof words_, 0);
    if (got == static_cast<ssize_t>(sizeof words_)) break;
    if (got < 0 && errno != EINTR) stopTheGame("the system gives no random numbers");
  }
  used_ = 0;
}

}  // namespace tb
