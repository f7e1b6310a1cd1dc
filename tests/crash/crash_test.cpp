// The process killed at random moments, again and again: the store opens each time, and all that it holds is
// from before or after one and the same action.
//
//   crash_test KILLS      of each of the two sessions
//
// A child plays on the SQLite store and says after each action that it is done; the parent kills it, plays
// the same actions in memory, and compares the whole dictionaries. The store must hold every action that was
// said to be done and may hold the one after it, whole.

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

constexpr int killsPerCareer = 25;                  // then the store begins anew: beginnings are killed, too
constexpr std::uint64_t actionsPerLaunch = 10'000;  // action numbers that a launch has to itself
constexpr std::uint64_t mostActions = 12;           // that are done before the kill
constexpr microseconds longestLaunch{40'000};       // a kill without an action done comes this late at most
constexpr microseconds longestAction{4'000};        // and a kill after an action this late

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

// Waits for `count` steps to be done; says how many were, which is fewer when the child ended.
std::uint64_t awaitSteps(int progress, std::uint64_t count) {
  std::uint64_t done = 0;
  char mark = 0;
  while (done < count && read(progress, &mark, 1) == 1) done += 1;
  return done;
}

// Plays in a child that is killed somewhere in the step after `calm` steps, or soon after that. Answers with
// the number of steps that were done; the launch is the first.
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
  int unfinished = 0;  // kills that struck before the commit of the action they interrupted, or between two
  int finished = 0;    // kills that struck after that commit
  std::uint64_t steps = 0;
};

class Career {
 public:
  Career(std::filesystem::path folder, Launch launch) : folder_(std::move(folder)), launch_(launch) {
    std::filesystem::create_directories(folder_);
  }

  // One launch, its kill, and the comparison. False when the store is not as it should be.
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
  test::MemoryPort memory_;  // the same career, never killed
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
      surviveKills(folder, "books", keepBooks, kills) && surviveKills(folder, "game", playGame, kills);
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
