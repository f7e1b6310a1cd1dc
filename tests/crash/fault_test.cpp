// Makes each call of the system fail, one after the other, that a start, a week, a switch, a backup, a
// restore and a week taken back make on the files. Afterwards the folder must hold one whole game, the old or
// the new, and nothing that was sound may have been moved.

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <print>
#include <string>

#include "core/save_backups.h"
#include "core/save_slots.h"
#include "core/way_back.h"
#include "shells/native/document_folder.h"
#include "shells/sqlite/sqlite_port.h"
#include "tests/crash/career_actions.h"
#include "tests/crash/faulty_calls.h"
#include "tests/memory_documents.h"
#include "tests/seeded_random.h"

namespace tb::crash {
namespace {

namespace fs = std::filesystem;

struct Action {
  const char* name;
  std::function<void(Game&)> act;
};

const std::array actions = {
    Action{"a start", [](Game&) {}},
    Action{"a week", playWeek},
    Action{"a switch to a career", [](Game& game) { switchToSlot(game, 1); }},
    Action{"a switch to an empty slot", [](Game& game) { switchToSlot(game, 2); }},
    Action{"a backup", [](Game& game) { static_cast<void>(SaveBackupManager::backUp(game)); }},
    Action{"a restore", restoreBackup},
    Action{"a deletion", [](Game& game) { SlotManager::remove(game, 1); }},
    Action{"a week taken back", [](Game& game) { static_cast<void>(backToLastWeek(game)); }},
};

// Starts a game on the folder, acts, and ends the game. False when the game does not start.
bool play(const fs::path& folder, const std::function<void(Game&)>& act) {
  const auto port = SqlitePort::open(folder);
  if (!port) return false;
  SaveStore store(**port);
  DocumentFolder documents(folder);
  test::SeededRandom random{5};
  actInGame(store, documents, random, act);
  return true;
}

void copyFolder(const fs::path& from, const fs::path& to) {
  fs::remove_all(to);
  fs::copy(from, to, fs::copy_options::recursive);
}

// Two careers with backups; the one in play has weeks in the log that are not yet in the file, as after a
// kill.
void prepare(const fs::path& folder) {
  fs::create_directories(folder);
  for (const Int slot : {0, 1, 0}) {
    play(folder, [slot](Game& game) { switchToSlot(game, slot); });
    play(folder, [slot](Game& game) {
      if (game.world.enterPlayerDetails == 0) beginCareer(game, "Performer " + std::to_string(slot));
    });
    play(folder, [](Game& game) { static_cast<void>(SaveBackupManager::backUp(game)); });
    for (int week = 0; week < 3; ++week) play(folder, playWeek);
  }
  const fs::path copy = folder.string() + "-copy";
  const auto port = SqlitePort::open(folder);
  if (!port) std::exit(1);
  SaveStore store(**port);
  DocumentFolder documents(folder);
  test::SeededRandom random{5};
  for (int week = 0; week < 2; ++week) actInGame(store, documents, random, playWeek);
  copyFolder(folder, copy);
}

// All that is stored.
struct Saved {
  std::vector<StoredPiece> pieces;
  std::map<std::string, Bytes> documents;  // by path
};

std::map<std::string, Bytes> documentsIn(const fs::path& base) {
  std::map<std::string, Bytes> all;
  DocumentFolder documents(base);
  for (const std::string_view folder : {SlotManager::slotFolderName, SaveBackupManager::backupFolderName}) {
    const auto found = documents.list(folder).value();
    for (const DocumentSummary& document : found) {
      documents.read(folder, document.name, [&](std::optional<Bytes> content) {
        all[std::string(folder) + "/" + document.name] = std::move(content).value_or(Bytes{});
      });
    }
  }
  return all;
}

Saved savedIn(const fs::path& folder) {
  const auto port = SqlitePort::open(folder);
  if (!port || (*port)->notice()) {
    std::println(stderr, "{}", port ? (*port)->notice()->message : port.error().message);
    return {};
  }
  return {(*port)->load(), documentsIn(folder)};
}

// Why the folder is neither as before nor as after the action; empty when it is.
std::string whatIsWrong(const Saved& saved, const Saved& before, const Saved& after) {
  if (saved.pieces != before.pieces && saved.pieces != after.pieces) return "the store is of neither state";
  for (const auto& [path, content] : saved.documents) {
    const auto is = [&](const Saved& other) {
      const auto found = other.documents.find(path);
      return found != other.documents.end() && found->second == content;
    };
    if (!is(before) && !is(after)) return path + " is of neither state";
  }
  for (const auto& [path, content] : before.documents) {
    if (!saved.documents.contains(path) && after.documents.contains(path)) return path + " is gone";
  }
  return "";
}

class Faults {
 public:
  explicit Faults(fs::path base) : base_(std::move(base)) { prepare(base_ / "prepared"); }

  // False when the action left something wrong.
  bool survive(const Action& action, Fault fault) {
    const fs::path prepared = base_ / "prepared-copy";
    const fs::path folder = base_ / "played";
    copyFolder(prepared, folder);
    const Saved before = savedIn(folder);
    copyFolder(prepared, folder);
    play(folder, action.act);
    const Saved after = savedIn(folder);
    if (before.pieces.empty() || before.documents.size() < 2) return false;
    int nth = 1;
    for (bool failed = true; failed; ++nth) {
      copyFolder(prepared, folder);
      bool started = false;
      {
        const FaultyCalls faulty(fault, nth);
        started = play(folder, action.act);
        failed = FaultyCalls::hasFailed();
      }
      const std::string wrong = whatIsWrong(savedIn(folder), before, after);
      if (wrong.empty()) continue;
      std::println(stderr, "{}, call {} fails {}, {}: {}", action.name, nth,
                   fault == Fault::passing   ? "once"
                   : fault == Fault::lasting ? "for good"
                                             : "for lack of room",
                   started ? "started" : "not started", wrong);
      return false;
    }
    calls_ += nth - 2;
    return true;
  }

  [[nodiscard]] int calls() const { return calls_; }

 private:
  fs::path base_;
  int calls_ = 0;
};

int main() {
  std::string name = (fs::temp_directory_path() / "billing-faults-XXXXXX").string();
  const fs::path base = mkdtemp(name.data());
  Faults faults(base);
  bool isWhole = true;
  for (const Action& action : actions) {
    for (const Fault fault : {Fault::passing, Fault::lasting, Fault::fullDisk}) {
      isWhole &= faults.survive(action, fault);
    }
  }
  if (!isWhole) return 1;
  std::println("{} calls failed: always one whole game", faults.calls());
  fs::remove_all(base);
  return 0;
}

}  // namespace
}  // namespace tb::crash

int main() { return tb::crash::main(); }
