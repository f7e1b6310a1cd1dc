#include "shells/sqlite/sqlite_port.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace tb {
namespace {

namespace fs = std::filesystem;
using plist::Array;
using plist::Dictionary;
using plist::Value;

Value integer(std::int64_t number) { return Value{number}; }

std::string contentOf(const fs::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

void overwrite(const fs::path& file, const std::string& content) {
  std::ofstream(file, std::ios::binary | std::ios::trunc) << content;
}

// Makes SQLite's reads or writes fail after a number of them: for good, or once.
class FaultyDisk {
 public:
  enum class Fault : std::uint8_t { fullDisk, badSector, passingReadError };

  FaultyDisk(Fault fault, int callsBefore) : reads_(fault != Fault::fullDisk) {
    callsLeft = callsBefore;
    passes = fault == Fault::passingReadError;
    failed = 0;
    for (const char* const call : reads_ ? readCalls : writeCalls) set(call, replacement());
  }
  ~FaultyDisk() {
    for (const char* const call : reads_ ? readCalls : writeCalls)
      set(call, nullptr);  // restores the system call
  }

  [[nodiscard]] static int failures() { return failed; }

 private:
  using Call = sqlite3_syscall_ptr;

  // SQLite uses one of each, depending on its build.
  static constexpr const char* writeCalls[] = {"pwrite", "pwrite64"};
  static constexpr const char* readCalls[] = {"pread", "pread64"};

  [[nodiscard]] Call replacement() const {
    return reads_ ? reinterpret_cast<Call>(&read) : reinterpret_cast<Call>(&write);
  }
  static void set(const char* name, Call call) {
    sqlite3_vfs* const system = sqlite3_vfs_find(nullptr);
    system->xSetSystemCall(system, name, call);
  }
  static bool fails(int reason) {
    callsLeft -= 1;
    if (callsLeft >= 0 || (passes && failed > 0)) return false;
    failed += 1;
    errno = reason;
    return true;
  }
  static ssize_t write(int file, const void* bytes, size_t count, off_t offset) {
    return fails(ENOSPC) ? -1 : pwrite(file, bytes, count, offset);
  }
  static ssize_t read(int file, void* bytes, size_t count, off_t offset) {
    return fails(EIO) ? -1 : pread(file, bytes, count, offset);
  }

  bool reads_;
  static inline int callsLeft = 0;
  static inline int failed = 0;
  static inline bool passes = false;
};

class SqliteCareer : public testing::Test {
 protected:
  SqliteCareer() {
    std::string name = (fs::temp_directory_path() / "billing-store-XXXXXX").string();
    folder_ = mkdtemp(name.data());
    file_ = folder_ / "career.sqlite";
  }
  ~SqliteCareer() override {
    std::error_code error;
    fs::remove_all(folder_, error);
  }

  std::unique_ptr<SqlitePort> open() {
    auto port = SqlitePort::open(folder_);
    if (!port) ADD_FAILURE() << port.error().message;
    return port ? *std::move(port) : nullptr;
  }

  OpenFailure refusal() {
    auto port = SqlitePort::open(folder_);
    EXPECT_FALSE(port);
    return port ? OpenFailure{} : port.error();
  }

  // Creates a career with a scalar and a list.
  Dictionary beginCareer() {
    const auto port = open();
    SaveStore store(*port);
    store.put("weekNumber", integer(12));
    store.put("", Value{std::string("a key without a name, “ä”")});
    for (std::int64_t piece = -2; piece < 3; ++piece) writePiece(store, piece);
    EXPECT_TRUE(store.commit());
    return store.dictionary();
  }

  static void writePiece(SaveStore& store, std::int64_t piece, std::size_t length = 100) {
    const Value content{Array(length, integer(piece))};
    store.putPieces("trackFans", Shape::plainList, false, {{piece, plist::write(content)}});
  }

  Dictionary stored() {
    const auto port = open();
    return port ? SaveStore(*port).dictionary() : Dictionary{};
  }

  // Runs SQL on the closed career.
  void alter(const std::string& sql) {
    const auto database = sqlite::Database::open(file_);
    ASSERT_TRUE(database);
    const auto done = database->run(sql);
    ASSERT_TRUE(done) << done.error().message;
  }

  std::int64_t count(const std::string& table) {
    return sqlite::Database::open(file_)->number("SELECT count(*) FROM " + table).value_or(-1);
  }

  fs::path folder_;
  fs::path file_;
};

TEST_F(SqliteCareer, KeepsTheCareerBetweenSessions) {
  const Dictionary first = beginCareer();
  EXPECT_EQ(stored(), first);
  {
    const auto port = open();
    EXPECT_FALSE(port->notice());
    SaveStore store(*port);
    store.put("weekNumber", integer(13));
    store.remove("");
    store.putPieces("trackFans", Shape::plainList, false, {{0, std::nullopt}});
    store.putPieces("trackCards", Shape::plainList, true, {{0, Bytes{}}});  // empty bytes are stored too
    ASSERT_TRUE(store.commit());
    store.keepAside("trackCards");
    store.remove("trackCards");
    store.keepAside("weekNumber");
    ASSERT_TRUE(store.commit());
    store.keepAside("weekNumber");
    ASSERT_TRUE(store.commit());
  }
  EXPECT_EQ(stored().size(), 2u);
  EXPECT_EQ(count("pieces"), 5);
  EXPECT_EQ(count("kept_aside"), 2);
  {
    const auto port = open();
    SaveStore(*port).replace({});
    SaveStore store(*port);
    store.replace({{"myName", Value{std::string("Ada")}}});
    ASSERT_TRUE(store.commit());
  }
  EXPECT_EQ(stored(), (Dictionary{{"myName", Value{std::string("Ada")}}}));
}

TEST_F(SqliteCareer, RejectsASecondProcess) {
  const auto port = open();
  const pid_t other = fork();
  if (other == 0) {
    const auto second = SqlitePort::open(folder_);
    const bool told =
        !second && second.error().kind == OpenFailure::Kind::alreadyOpen &&
        second.error().message == "Top Billing is already open in another window. Close it there first.";
    _exit(told ? 0 : 1);
  }
  int status = 0;
  ASSERT_EQ(waitpid(other, &status, 0), other);
  EXPECT_EQ(status, 0);
  SaveStore store(*port);
  store.put("weekNumber", integer(2));
  EXPECT_TRUE(store.commit());
}

TEST_F(SqliteCareer, DoesNotTouchLockedFiles) {
  beginCareer();
  {
    const auto other = sqlite::Database::open(file_);
    ASSERT_TRUE(other->number("SELECT count(*) FROM pieces"));
    ASSERT_TRUE(other->run("BEGIN IMMEDIATE"));
    EXPECT_EQ(refusal().kind, OpenFailure::Kind::alreadyOpen);
  }
  EXPECT_EQ(stored().size(), 3u);
}

TEST_F(SqliteCareer, MovesDamagedCareersAside) {
  beginCareer();
  const std::string sound = contentOf(file_);
  std::string scratched = sound;
  std::fill(scratched.begin() + 4096, scratched.begin() + 4096 + 600, '\x5a');
  std::vector<std::string> damages = {
      "This is no database, but a shopping list. Eggs, flour, butter, two lemons.", sound.substr(0, 5000),
      scratched};
  // Damages any page of the file.
  for (std::size_t page = 1; page * 4096 < sound.size(); ++page) {
    damages.push_back(sound);
    damages.back().replace(page * 4096, 512, 512, '\xff');
  }
  int number = 0;
  for (const std::string& damage : damages) {
    number += 1;
    overwrite(file_, damage);
    overwrite(file_.string() + "-wal", "left over");
    const fs::path aside = folder_ / ("career.damaged-" + std::to_string(number));
    const auto port = open();
    ASSERT_NE(port, nullptr);
    ASSERT_TRUE(port->notice()) << "damage " << number << " went unseen";
    EXPECT_TRUE(port->notice()->message.contains(aside.string()));
    EXPECT_EQ(contentOf(aside / "career.sqlite"), damage);
    EXPECT_EQ(contentOf(aside / "career.sqlite-wal"), "left over");
    SaveStore store(*port);
    EXPECT_TRUE(store.dictionary().empty());
    store.put("weekNumber", integer(1));
    EXPECT_TRUE(store.commit());
  }
  EXPECT_EQ(stored().size(), 1u);
  // The notice comes back until the player has moved the folders.
  EXPECT_TRUE(open()->notice());
  for (int folder = 1; folder <= number; ++folder) {
    fs::remove_all(folder_ / ("career.damaged-" + std::to_string(folder)));
  }
  EXPECT_FALSE(open()->notice());
}

TEST_F(SqliteCareer, MovesOtherDatabasesAside) {
  alter("CREATE TABLE recipes (name TEXT)");
  EXPECT_TRUE(open()->notice());
  EXPECT_TRUE(fs::exists(folder_ / "career.damaged-1"));
  alter("DROP TABLE kept_aside");
  EXPECT_TRUE(open()->notice());
  EXPECT_TRUE(fs::exists(folder_ / "career.damaged-2"));
}

TEST_F(SqliteCareer, KeepsALogWithoutItsFile) {
  for (const bool missing : {false, true}) {
    overwrite(file_, "");
    if (missing) fs::remove(file_);
    overwrite(file_.string() + "-wal", "forty weeks");
    EXPECT_TRUE(open()->notice());
    EXPECT_EQ(contentOf(folder_ / "career.damaged-1" / "career.sqlite-wal"), "forty weeks");
    fs::remove_all(folder_ / "career.damaged-1");
  }
}

TEST_F(SqliteCareer, TakesNoFailedReadForDamage) {
  using enum FaultyDisk::Fault;
  beginCareer();
  {
    const auto port = open();
    SaveStore store(*port);
    for (std::int64_t piece = 0; piece < 8; ++piece) writePiece(store, piece, 2000);
    ASSERT_TRUE(store.commit());
  }
  const Dictionary begun = stored();
  const std::string file = contentOf(file_);
  for (const auto fault : {passingReadError, badSector}) {
    bool finished = false;
    for (int before = 0; !finished; ++before) {
      ASSERT_LT(before, 200);
      {
        const FaultyDisk disk(fault, before);
        const auto port = SqlitePort::open(folder_);
        finished = FaultyDisk::failures() == 0;
        if (!port) {
          EXPECT_EQ(port.error().kind, OpenFailure::Kind::diskError) << port.error().message;
          EXPECT_TRUE(port.error().message.contains("The disk reported an error")) << port.error().message;
        }
        if (finished) EXPECT_TRUE(port && before > 5);
      }
      EXPECT_TRUE(contentOf(file_) == file);
      EXPECT_FALSE(fs::exists(folder_ / "career.damaged-1"));
      ASSERT_EQ(stored(), begun) << "after " << before << " reads";
    }
  }
}

TEST_F(SqliteCareer, NoticesThatItsFileWasMoved) {
  const Dictionary begun = beginCareer();
  const auto port = open();
  SaveStore store(*port);
  store.put("weekNumber", integer(13));
  const fs::path away = folder_ / "away";
  fs::create_directory(away);
  fs::rename(file_, away / "career.sqlite");
  ASSERT_FALSE(store.commit());
  overwrite(file_, "another file");
  const auto refused = store.commit();
  ASSERT_FALSE(refused);
  EXPECT_TRUE(refused.error().contains("was moved or deleted")) << refused.error();
  fs::rename(away / "career.sqlite", file_);
  EXPECT_TRUE(store.commit());
}

TEST_F(SqliteCareer, EmptiesItsLogWhilePlaying) {
  beginCareer();
  const auto port = open();
  SaveStore store(*port);
  std::uintmax_t longest = 0;
  for (int week = 0; week < 150; ++week) {
    writePiece(store, week % 8, 3000 + static_cast<std::size_t>(week));
    ASSERT_TRUE(store.commit());
    longest = std::max(longest, fs::file_size(file_.string() + "-wal"));
  }
  EXPECT_GT(fs::file_size(file_), 40'000u);
  EXPECT_LT(longest, 1'300'000u);
}

TEST_F(SqliteCareer, TreatsAnEmptyFileAsNew) {
  overwrite(file_, "");
  EXPECT_FALSE(open()->notice());
  EXPECT_EQ(beginCareer(), stored());
}

TEST_F(SqliteCareer, RejectsNewerVersions) {
  beginCareer();
  alter("PRAGMA user_version = 5");
  alter("INSERT INTO pieces VALUES ('future', 0, 9, x'00')");
  const std::string before = contentOf(file_);
  EXPECT_EQ(refusal().kind, OpenFailure::Kind::newerVersion);
  EXPECT_EQ(contentOf(file_), before);
  EXPECT_FALSE(fs::exists(folder_ / "career.damaged-1"));
}

TEST_F(SqliteCareer, UpgradesOlderVersions) {
  const Dictionary first = beginCareer();
  alter("PRAGMA user_version = 1");
  EXPECT_EQ(stored(), first);
  EXPECT_EQ(sqlite::Database::open(file_)->number("PRAGMA user_version"), 4);
}

TEST_F(SqliteCareer, SetsDamagedRowsAside) {
  beginCareer();
  alter(
      "INSERT INTO pieces VALUES ('shape', 0, 7, x'00'), ('text', 0, 0, 'text'), ('piece', 'one', 0, x'00')");
  alter("INSERT INTO pieces VALUES (x'6b6579', 0, 0, x'00')");
  alter("UPDATE pieces SET shape = NULL WHERE key = 'trackFans' AND piece = 1");
  const std::int64_t rows = count("pieces");
  {
    const auto port = open();
    const SaveStore store(*port);
    EXPECT_EQ(store.value("weekNumber"), integer(12));
    EXPECT_EQ(store.entry("trackFans")->pieces.size(), 5u);
    EXPECT_TRUE(store.entry("trackFans")->pieces.at(1).empty());
  }
  EXPECT_EQ(count("kept_aside"), 5);
  EXPECT_EQ(count("pieces"), rows);
}

TEST_F(SqliteCareer, ReportsUnwritableFolders) {
  overwrite(folder_ / "file", "");
  const auto port = SqlitePort::open(folder_ / "file");
  ASSERT_FALSE(port);
  EXPECT_EQ(port.error().kind, OpenFailure::Kind::cannotWrite);
  EXPECT_TRUE(port.error().message.contains((folder_ / "file").string()));
}

TEST_F(SqliteCareer, ContinuesWhenTheDiskHasRoom) {
  beginCareer();
  Dictionary last;
  {
    const auto port = open();
    SaveStore store(*port);
    for (int room = 0; room < 20; ++room) {
      store.put("weekNumber", integer(1000 + room));
      writePiece(store, room % 8, 3000);
      {
        FaultyDisk disk(FaultyDisk::Fault::fullDisk, room);
        const auto done = store.commit();
        if (!done) EXPECT_EQ(done.error(), "The disk is full.");
        EXPECT_EQ(store.hasUncommitted(), !done);
      }
      if (room % 3 == 0) ASSERT_TRUE(store.commit());
    }
    ASSERT_TRUE(store.commit());
    last = store.dictionary();
  }
  EXPECT_EQ(stored(), last);
}

TEST_F(SqliteCareer, ReportsAFullDiskAtCreation) {
  bool fitted = false;
  for (int room = 0; !fitted; ++room) {
    ASSERT_LT(room, 100);
    {
      FaultyDisk disk(FaultyDisk::Fault::fullDisk, room);
      const auto port = SqlitePort::open(folder_);
      fitted = port.has_value();
      if (!port) {
        EXPECT_EQ(port.error().kind, OpenFailure::Kind::cannotWrite);
        EXPECT_TRUE(port.error().message.ends_with("The disk is full.")) << port.error().message;
      }
    }
    EXPECT_FALSE(open()->notice());
    if (!fitted) fs::remove(file_);
  }
}

TEST_F(SqliteCareer, UsesTheDataFolder) {
  setenv("XDG_DATA_HOME", (folder_ / "data").c_str(), 1);
  EXPECT_EQ(saveFolder(), folder_ / "data" / "top-billing");
  EXPECT_EQ(fs::status(folder_ / "data" / "top-billing").permissions(), fs::perms::owner_all);
  setenv("XDG_DATA_HOME", "relative", 1);
  setenv("HOME", folder_.c_str(), 1);
  EXPECT_EQ(saveFolder(), folder_ / ".local" / "share" / "top-billing");
  overwrite(folder_ / "file", "");
  setenv("XDG_DATA_HOME", (folder_ / "file").c_str(), 1);
  const auto folder = saveFolder();
  ASSERT_FALSE(folder);
  EXPECT_EQ(folder.error().kind, OpenFailure::Kind::cannotWrite);
}

}  // namespace
}  // namespace tb
