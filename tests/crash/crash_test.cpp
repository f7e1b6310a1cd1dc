// Kills the process at random moments: the store must open every time and hold the state before or after an
// action.
//
//   crash_test KILLS      per session type
//
// A child process plays on the SQLite store and reports each finished action. The parent kills it, plays the
// same actions in memory, and compares what is stored. The store must hold all reported actions and may hold
// the next one completely. Each slot and backup is as before or after that action, and complete.

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

#include "core/save_backups.h"
#include "core/save_slots.h"
#include "shells/native/document_folder.h"
#include "shells/sqlite/sqlite_port.h"
#include "tests/crash/session.h"
#include "tests/memory_documents.h"
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
  DocumentFolder documents(folder);
  const auto session = launch(**port, documents);
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

// All that is stored.
struct Saved {
  decltype(test::MemoryPort::pieces) pieces;
  decltype(test::MemoryDocuments::files) documents;
};

decltype(Saved::pieces) piecesOf(StorePort& port) {
  decltype(Saved::pieces) pieces;
  for (StoredPiece& piece : port.load()) pieces[{piece.key, piece.piece}] = std::move(piece);
  return pieces;
}

decltype(Saved::documents) documentsIn(const std::filesystem::path& base) {
  decltype(Saved::documents) all;
  DocumentFolder documents(base);
  for (const std::string_view folder : {SlotManager::slotFolderName, SaveBackupManager::backupFolderName}) {
    const auto found = documents.list(folder).value();
    for (const DocumentSummary& document : found) {
      documents.read(folder, document.name, [&](std::optional<Bytes> content) {
        all[{std::string(folder), document.name}] = std::move(content).value_or(Bytes{});
      });
    }
  }
  return all;
}

using DocumentPlace = std::pair<std::string, std::string>;  // folder and name

bool isOfEither(const DocumentPlace& place, const Bytes& content, const Saved& before, const Saved& after) {
  return std::ranges::any_of(std::array{&before, &after}, [&](const Saved* saved) {
    const auto found = saved->documents.find(place);
    return found != saved->documents.end() && found->second == content;
  });
}

// Each document is as before or as after the action, and none is missing that both have.
bool areOfEither(const decltype(Saved::documents)& documents, const Saved& before, const Saved& after) {
  const bool areKnown = std::ranges::all_of(documents, [&](const auto& document) {
    return isOfEither(document.first, document.second, before, after);
  });
  return areKnown && std::ranges::all_of(before.documents, [&](const auto& document) {
           return documents.contains(document.first) || !after.documents.contains(document.first);
         });
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
    const Saved stored{piecesOf(**port), documentsIn(folder_)};

    std::unique_ptr<Session> session;
    const auto play = [&](std::uint64_t step) {
      if (step == 0) {
        session = launch_(memory_, documents_);
      } else {
        session->act(actionNumber(number, step));
      }
    };
    for (std::uint64_t step = 0; step < steps; ++step) play(step);
    tally.kills += 1;
    tally.steps += steps;
    const Saved before{memory_.pieces, documents_.files};
    play(steps);
    const Saved after{memory_.pieces, documents_.files};
    const bool isBefore = stored.pieces == before.pieces;
    if ((!isBefore && stored.pieces != after.pieces) || !areOfEither(stored.documents, before, after)) {
      report(number, steps, stored, before, after);
      return false;
    }
    (isBefore ? tally.unfinished : tally.finished) += 1;
    memory_.pieces = stored.pieces;
    documents_.files = stored.documents;
    return true;
  }

 private:
  static void report(std::uint64_t number, std::uint64_t steps, const Saved& stored, const Saved& before,
                     const Saved& after) {
    std::println(stderr, "launch {}, killed after {} steps: {} pieces, {} before and {} after the action",
                 number, steps, stored.pieces.size(), before.pieces.size(), after.pieces.size());
    for (const auto& piece : stored.pieces) {
      const bool old = std::ranges::contains(before.pieces, piece);
      const bool fresh = std::ranges::contains(after.pieces, piece);
      const char* const from = old ? "before" : fresh ? "after" : "neither side of";
      if (old != fresh || !old) std::println(stderr, "  {} is from {} the action", piece.first.first, from);
    }
    for (const auto& [place, content] : stored.documents) {
      if (!isOfEither(place, content, before, after))
        std::println(stderr, "  {} is from neither", place.second);
    }
  }

  std::filesystem::path folder_;
  Launch launch_;
  test::MemoryPort memory_;  // the same career without kills
  test::MemoryDocuments documents_;
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
  const bool whole = surviveKills(folder, "books", playBookkeeping, kills) &&
                     surviveKills(folder, "careers", playCareers, kills) &&
                     surviveKills(folder, "game", playGame, kills);
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
