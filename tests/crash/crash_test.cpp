// Kills the process at random moments: the store must open every time and hold the state before or after an
// action.
//
//   crash_test KILLS      per session type
//
// A child process plays on the SQLite store and reports each finished action. The parent kills it, plays the
// same actions in memory, and compares the dictionaries. The store must hold all reported actions and may
// hold the next one completely.

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <format>
#include <memory>
#include <print>
#include <random>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

#include "shells/sqlite/sqlite_port.h"
#include "tests/crash/session.h"
#include "tests/memory_port.h"

namespace tb::crash {
namespace {

using std::chrono::microseconds;

constexpr int killsPerCareer = 25;  // then starts a new store, so that creation is interrupted too
constexpr std::uint64_t actionsPerLaunch = 10'000;  // action numbers reserved for a launch
constexpr std::uint64_t mostActions = 12;           // before the kill
constexpr microseconds longestLaunch{40'000};       // latest kill during a launch
constexpr microseconds longestAction{4'000};        // latest kill after an action

std::uint64_t actionNumber(std::uint64_t launch, std::uint64_t step) {
  return launch * actionsPerLaunch + step;
}

[[noreturn]] void playUntilKilled(const std::filesystem::path& folder, Launch launch, std::uint64_t number,
                                  int progress) {
  const auto done = [progress] {
    if (write(progress, "+", 1) != 1) _exit(1);
  };
  const auto port = SqlitePort::open(folder);
  if (!port) _exit(1);
  const auto session = launch(**port);
  done();
  for (std::uint64_t step = 1; step < actionsPerLaunch; ++step) {
    session->act(actionNumber(number, step));
    done();
  }
  _exit(0);
}

// Waits for `count` steps and returns the number finished, which is smaller if the child ended.
std::uint64_t awaitSteps(int progress, std::uint64_t count) {
  std::uint64_t done = 0;
  char mark = 0;
  while (done < count && read(progress, &mark, 1) == 1) done += 1;
  return done;
}

// Plays in a child that is killed during or soon after the step after `calm` steps. Returns the number of
// finished steps, including the launch.
std::uint64_t playAndKill(const std::filesystem::path& folder, Launch launch, std::uint64_t number,
                          std::uint64_t calm, microseconds wait) {
  std::array<int, 2> progress{};
  if (pipe2(progress.data(), O_CLOEXEC) != 0) std::abort();
  const pid_t child = fork();
  if (child == 0) playUntilKilled(folder, launch, number, progress[1]);
  close(progress[1]);
  const std::uint64_t before = awaitSteps(progress[0], calm);
  std::this_thread::sleep_for(wait);
  kill(child, SIGKILL);
  int status = 0;
  waitpid(child, &status, 0);
  const std::uint64_t steps = before + awaitSteps(progress[0], ~std::uint64_t{0});
  close(progress[0]);
  if (!WIFSIGNALED(status) || WTERMSIG(status) != SIGKILL) {
    std::println(stderr, "launch {} ended by itself", number);
    std::exit(1);
  }
  return steps;
}

struct Tally {
  int kills = 0;
  int unfinished = 0;  // kills before a commit or between actions
  int finished = 0;    // kills after the commit
  std::uint64_t steps = 0;
};

class Career {
 public:
  Career(std::filesystem::path folder, Launch launch) : folder_(std::move(folder)), launch_(launch) {
    std::filesystem::create_directories(folder_);
  }

  // A launch, its kill, and the comparison. False when the store is wrong.
  bool survive(std::uint64_t number, std::uint64_t calm, microseconds wait, Tally& tally) {
    const std::uint64_t steps = playAndKill(folder_, launch_, number, calm, wait);
    const auto port = SqlitePort::open(folder_);
    if (!port || (*port)->notice()) {
      std::println(stderr, "launch {}: {}", number, port ? (*port)->notice()->message : port.error().message);
      return false;
    }
    const plist::Dictionary stored = SaveStore(**port).dictionary();

    std::unique_ptr<Session> session;
    const auto play = [&](std::uint64_t step) {
      if (step == 0) {
        session = launch_(memory_);
      } else {
        session->act(actionNumber(number, step));
      }
    };
    for (std::uint64_t step = 0; step < steps; ++step) play(step);
    tally.kills += 1;
    tally.steps += steps;
    const plist::Dictionary before = SaveStore(memory_).dictionary();
    if (stored == before) {
      tally.unfinished += 1;
      return true;
    }
    play(steps);
    const plist::Dictionary after = SaveStore(memory_).dictionary();
    if (stored == after) {
      tally.finished += 1;
      return true;
    }
    report(number, steps, stored, before, after);
    return false;
  }

 private:
  static void report(std::uint64_t number, std::uint64_t steps, const plist::Dictionary& stored,
                     const plist::Dictionary& before, const plist::Dictionary& after) {
    std::println(stderr, "launch {}, killed after {} steps: {} keys, {} before and {} after the action",
                 number, steps, stored.size(), before.size(), after.size());
    for (const auto& entry : stored) {
      const bool old = std::ranges::contains(before, entry);
      const bool fresh = std::ranges::contains(after, entry);
      if (old != fresh)
        std::println(stderr, "  {} is from {} the action", entry.first, old ? "before" : "after");
      if (!old && !fresh) std::println(stderr, "  {} is from neither", entry.first);
    }
  }

  std::filesystem::path folder_;
  Launch launch_;
  test::MemoryPort memory_;  // the same career without kills
};

bool surviveKills(const std::filesystem::path& folder, const char* name, Launch launch, int kills) {
  std::mt19937_64 chance(std::random_device{}());
  const auto upTo = [&](auto most) { return std::uniform_int_distribution<decltype(most)>(0, most)(chance); };
  Tally tally;
  std::unique_ptr<Career> career;
  for (int number = 0; number < kills; ++number) {
    if (number % killsPerCareer == 0) {
      career = std::make_unique<Career>(folder / std::format("{}-{}", name, number / killsPerCareer), launch);
    }
    const std::uint64_t calm = upTo(mostActions);
    const microseconds wait(upTo((calm == 0 ? longestLaunch : longestAction).count()));
    if (!career->survive(static_cast<std::uint64_t>(number), calm, wait, tally)) return false;
  }
  std::println(
      "{}: {} kills, {} steps done; {} kills found the step they struck not yet stored, {} found it whole",
      name, tally.kills, tally.steps, tally.unfinished, tally.finished);
  return true;
}

int main(int kills) {
  std::string name = (std::filesystem::temp_directory_path() / "billing-crash-XXXXXX").string();
  const std::filesystem::path folder = mkdtemp(name.data());
  const bool whole =
      surviveKills(folder, "books", playBookkeeping, kills) && surviveKills(folder, "game", playGame, kills);
  if (!whole) {
    std::println(stderr, "The store is left in {}", folder.string());
    return 1;
  }
  std::filesystem::remove_all(folder);
  return 0;
}

}  // namespace
}  // namespace tb::crash

int main(int count, char** words) { return tb::crash::main(count > 1 ? std::atoi(words[1]) : 300); }
