#include "shells/console/stop_notice.h"

#include <csignal>
#include <cstdlib>
#include <gtest/gtest.h>

#include "core/stop.h"

namespace tb::console {

namespace {

#if !__has_feature(address_sanitizer)  // which has its own report of a full stack
volatile int depth = 0;

// NOLINTNEXTLINE(misc-no-recursion): it fills the stack.
int withoutEnd(int value) {
  if (depth < 0) return 0;
  volatile int kept = value + 1;
  depth = depth + 1;
  return withoutEnd(kept) + kept;
}
#endif

TEST(StopNotice, SaysThatTheCareerIsSafeWhateverStopsTheGame) {
  const auto stopsWith = [](void (*stop)(), int signal) {
    const auto play = [stop] {
      announceStops("/careers/ada");
      stop();
    };
    EXPECT_EXIT(play(), testing::KilledBySignal(signal), "career is safe.*\n.*\n.*\n.*/careers/ada");
  };
  stopsWith([] { stopTheGame("a wrong value"); }, SIGILL);
  stopsWith([] { std::abort(); }, SIGABRT);
#if !__has_feature(address_sanitizer)
  stopsWith([] { depth = withoutEnd(depth); }, SIGSEGV);
#endif
}

}  // namespace

}  // namespace tb::console
