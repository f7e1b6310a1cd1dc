#include "shells/sqlite/sqlite_port.h"

#include <set>
#include <string_view>
#include <system_error>
#include <utility>

#include "core/debug_log.h"
#include "core/format.h"
#include "shells/sqlite/failed_reads.h"

namespace tb {

namespace {

using sqlite::Database;
using sqlite::Error;
using sqlite::Result;
using sqlite::Statement;

constexpr std::int64_t applicationId = 0x54424c47;  // identifies the file as a career of this game
// Increment with every change of what is stored; web/src/runtime/database.ts has its own. Version 2 added
// columns, which version 1 takes for damaged rows, version 3 the journals of the last weeks, and version 4
// journals of differences, which version 3 takes for damaged ones.
constexpr std::int64_t schemaVersion = 4;

// Pages of the write-ahead log before it is copied into the file: a few weeks of a busy career, some more of
// a quiet one. Whoever copies only the file loses no more than these.
constexpr int longestLog = 250;

constexpr std::string_view logSuffix = "-wal";

// Rows that no version of the game writes.
constexpr std::string_view damagedRows =
    "(typeof(key) <> 'text' OR typeof(piece) <> 'integer' OR typeof(value) <> 'blob' "
    "OR typeof(shape) <> 'integer' OR shape NOT BETWEEN 0 AND 4)";

// The PRAGMA values that identify the file.
struct FileMarks {
  std::int64_t applicationId = 0;
  std::int64_t version = 0;
  std::int64_t tables = 0;

  [[nodiscard]] bool isNew() const { return tables == 0; }
  [[nodiscard]] bool isOurs() const { return applicationId == tb::applicationId; }
};

std::unexpected<Error> damaged(std::string message) {
  return std::unexpected(Error{SQLITE_CORRUPT, std::move(message)});
}

Result<FileMarks> readMarks(const Database& database) {
  const auto id = database.number("PRAGMA application_id");
  if (!id) return std::unexpected(id.error());
  const auto version = database.number("PRAGMA user_version");
  if (!version) return std::unexpected(version.error());
  const auto tables = database.number("SELECT count(*) FROM sqlite_schema");
  if (!tables) return std::unexpected(tables.error());
  return FileMarks{*id, *version, *tables};
}

std::string setVersion() { return tb::format("PRAGMA user_version = {}", schemaVersion); }

// The marks are set in the transaction that creates the tables, so neither exists without the other.
Result<> createTables(const Database& database) {
  const std::string statements[] = {
      "BEGIN IMMEDIATE",
      "CREATE TABLE pieces (key TEXT, piece INTEGER, shape INTEGER, value BLOB, PRIMARY KEY (key, piece)) "
      "WITHOUT ROWID",
      "CREATE TABLE kept_aside (key TEXT, piece INTEGER, shape INTEGER, value BLOB)",
      tb::format("PRAGMA application_id = {}", applicationId),
      setVersion(),
      "COMMIT",
  };
  for (const std::string& statement : statements) {
    if (auto done = database.run(statement); !done) return done;
  }
  return {};
}

// Moves damaged rows to kept_aside. A row without a value takes the place of each, so that the loss is
// noticed when the game is loaded.
Result<> setDamagedRowsAside(const Database& database) {
  const std::string statements[] = {
      "BEGIN IMMEDIATE",
      tb::format("INSERT INTO kept_aside SELECT key, piece, shape, value FROM pieces WHERE {}", damagedRows),
      tb::format("CREATE TEMP TABLE unread AS SELECT key, piece FROM pieces WHERE {}", damagedRows),
      tb::format("DELETE FROM pieces WHERE {}", damagedRows),
      "INSERT OR IGNORE INTO pieces SELECT CAST(key AS TEXT), CAST(piece AS INTEGER), "
      "coalesce((SELECT max(shape) FROM pieces AS sound WHERE sound.key = CAST(unread.key AS TEXT)), 0), x'' "
      "FROM unread",
      "DROP TABLE unread",
      "COMMIT",
  };
  for (const std::string& statement : statements) {
    if (auto done = database.run(statement); !done) {
      database.rollBack();
      return done;
    }
  }
  debugLog("career.sqlite: damaged rows are kept in the table kept_aside");
  return {};
}

// Synchronous FULL makes every commit of the write-ahead log wait for the disk. The exclusive lock avoids the
// shared-memory index.
Result<> setDurability(const Database& database) {
  const auto mode = database.text("PRAGMA journal_mode = WAL");
  if (!mode) return std::unexpected(mode.error());
  if (*mode != "wal")
    return std::unexpected(Error{SQLITE_IOERR, "the disk does not support a write-ahead log"});
  if (auto done = database.run(tb::format("PRAGMA wal_autocheckpoint = {}", longestLog)); !done) return done;
  // Some builds of SQLite overwrite what is deleted with zeros, which a save does not need and is slow.
  if (auto done = database.run("PRAGMA secure_delete = OFF"); !done) return done;
  return database.run("PRAGMA synchronous = FULL");
}

// The message about a failed write.
std::string sentence(const Error& error) {
  switch (error.code) {
    case SQLITE_FULL:
      return "The disk is full.";
    case SQLITE_READONLY:
      return "The career file is write-protected.";
    case SQLITE_IOERR:
      return tb::format("The disk reported an error ({}).", error.message);
    default:
      return tb::format("The career file could not be written ({}).", error.message);
  }
}

bool isDamage(const Error& error) { return error.code == SQLITE_CORRUPT || error.code == SQLITE_NOTADB; }

// The result of the version check for a newer schema.
constexpr int laterSchema = SQLITE_SCHEMA;

OpenFailure failureOf(const Error& error, const std::filesystem::path& file) {
  using enum OpenFailure::Kind;
  switch (error.code) {
    case SQLITE_BUSY:
      return {alreadyOpen, tb::format("Another program is using {}. Close it there first.", file.string())};
    case laterSchema:
      return {
          newerVersion,
          "This career was saved by a newer version of Top Billing. Update the game to play it; nothing was "
          "changed."};
    case SQLITE_IOERR:
      return {diskError, tb::format("Top Billing did not open the saves in {}, and changed nothing. {}",
                                    file.parent_path().string(), sentence(error))};
    default:
      return {cannotWrite, tb::format("Top Billing cannot keep its saves in {}. {}",
                                      file.parent_path().string(), sentence(error))};
  }
}

constexpr std::string_view damagedName = "career.damaged-";

std::filesystem::path damagedFolder(const std::filesystem::path& folder, int number) {
  return folder / tb::format("{}{}", damagedName, number);
}

// Links a file to a second name, or copies it where the file system has no links.
void duplicate(const std::filesystem::path& from, const std::filesystem::path& to, std::error_code& error) {
  std::filesystem::create_hard_link(from, to, error);
  if (error) std::filesystem::copy_file(from, to, error);
}

// Moves the career file and SQLite's files beside it to a folder of their own, together or not at all: the
// folder gets its name when it is complete, and only then the files are removed here.
std::expected<void, OpenFailure> moveAside(const std::filesystem::path& file) {
  const std::filesystem::path folder = file.parent_path();
  std::error_code error;
  int number = 1;
  while (std::filesystem::exists(damagedFolder(folder, number), error)) number += 1;
  const std::filesystem::path unfinished = folder / "career.damaged";
  std::filesystem::remove_all(unfinished, error);
  std::filesystem::create_directory(unfinished, error);
  std::vector<std::filesystem::path> moved;
  for (const std::string_view suffix : {std::string_view(), logSuffix, std::string_view("-journal")}) {
    const std::filesystem::path from = file.string() + std::string(suffix);
    if (error || !std::filesystem::exists(from, error)) continue;
    duplicate(from, unfinished / from.filename(), error);
    moved.push_back(from);
  }
  if (!error) std::filesystem::rename(unfinished, damagedFolder(folder, number), error);
  for (const std::filesystem::path& from : moved) {
    if (!error) std::filesystem::remove(from, error);
  }
  if (error) return std::unexpected(failureOf({SQLITE_CANTOPEN, error.message()}, file));
  return {};
}

// About the damaged careers in the folder, if there are any.
std::optional<Notice> noticeAboutDamage(const std::filesystem::path& folder) {
  std::set<std::string> places;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.path().filename().string().starts_with(damagedName)) places.insert(entry.path().string());
  }
  if (places.empty()) return std::nullopt;
  std::string message = "A career could not be read. Its files were kept:\n";
  for (const std::string& place : places) message += "\n" + place;
  return Notice{"⚠️ Career File Damaged ⚠️",
                message + "\n\nThis notice is shown at every start until they are moved or deleted."};
}

// The size of a file, 0 when there is none.
Result<std::uintmax_t> sizeOf(const std::filesystem::path& file) {
  std::error_code error;
  const auto bytes = std::filesystem::file_size(file, error);
  if (!error) return bytes;
  if (error == std::errc::no_such_file_or_directory) return 0;
  return std::unexpected(Error{SQLITE_IOERR, error.message()});
}

// SQLite deletes a log beside an empty file, and with it the weeks that are only in the log.
Result<bool> hasLogWithoutFile(const std::filesystem::path& file) {
  const auto size = sizeOf(file);
  if (!size) return std::unexpected(size.error());
  const auto logSize = sizeOf(file.string() + std::string(logSuffix));
  if (!logSize) return std::unexpected(logSize.error());
  return *size == 0 && *logSize > 0;
}

}  // namespace

std::expected<std::unique_ptr<SqlitePort>, OpenFailure> SqlitePort::open(
    const std::filesystem::path& folder) {
  auto lock = FolderLock::take(folder);
  if (!lock) return std::unexpected(lock.error());
  const std::filesystem::path file = folder / "career.sqlite";
  auto career = openCareer(file);
  if (!career && isDamage(career.error())) {
    debugLog("career.sqlite: " + career.error().message);
    if (auto aside = moveAside(file); !aside) return std::unexpected(aside.error());
    career = openCareer(file);
  }
  if (!career) return std::unexpected(failureOf(career.error(), file));
  return std::unique_ptr<SqlitePort>(
      new SqlitePort(*std::move(lock), *std::move(career), noticeAboutDamage(folder)));
}

SqlitePort::SqlitePort(FolderLock lock, Career career, std::optional<Notice> notice)
    : lock_(std::move(lock)), career_(std::move(career)), notice_(std::move(notice)) {}

std::vector<StoredPiece> SqlitePort::load() { return std::exchange(career_.pieces, {}); }

std::expected<void, std::string> SqlitePort::commit(std::span<const StoreChange> changes) {
  if (career_.database.hasMoved()) {
    return std::unexpected(
        "The career file or its folder was moved or deleted. Put it back, or close the game and start it "
        "again.");
  }
  auto done = career_.database.run("BEGIN IMMEDIATE");
  if (done) done = applyAll(changes);
  if (done) done = career_.database.run("COMMIT");
  if (done) return {};
  career_.database.rollBack();
  return std::unexpected(sentence(done.error()));
}

// A read that the disk refused can look like damage to SQLite.
Result<SqlitePort::Career> SqlitePort::openCareer(const std::filesystem::path& file) {
  const auto lacksFile = hasLogWithoutFile(file);
  if (!lacksFile) return std::unexpected(lacksFile.error());
  if (*lacksFile) return damaged("there is a log without its file");
  const sqlite::FailedReads reads;
  auto career = openSoundCareer(file);
  if (!career && isDamage(career.error()) && !reads.reason().empty()) {
    return std::unexpected(Error{SQLITE_IOERR, reads.reason()});
  }
  return career;
}

// Writes nothing, not even on closing, until the file is known to be an intact career of this game.
Result<SqlitePort::Career> SqlitePort::openSoundCareer(const std::filesystem::path& file) {
  auto database = Database::open(file);
  if (!database) return std::unexpected(database.error());
  database->tidyWhenClosed(false);
  if (auto done = database->run("PRAGMA locking_mode = EXCLUSIVE"); !done)
    return std::unexpected(done.error());
  const auto marks = readMarks(*database);
  if (!marks) return std::unexpected(marks.error());
  if (!marks->isNew()) {
    if (!marks->isOurs()) return damaged("the file is another program's");
    if (marks->version > schemaVersion) return std::unexpected(Error{laterSchema, ""});
    const auto check = database->text("PRAGMA quick_check(1)");
    if (!check) return std::unexpected(check.error());
    if (*check != "ok") return damaged(*check);
  }
  if (database->isWriteProtected()) return std::unexpected(Error{SQLITE_READONLY, ""});
  if (auto done = setDurability(*database); !done) return std::unexpected(done.error());
  if (marks->isNew()) {
    if (auto done = createTables(*database); !done) return std::unexpected(done.error());
  } else if (marks->version < schemaVersion) {
    if (auto done = database->run(setVersion()); !done) return std::unexpected(done.error());
  }
  auto career = prepareCareer(*std::move(database));
  if (!career) return career;
  if (auto done = readPieces(*career); !done) return std::unexpected(done.error());
  career->database.tidyWhenClosed(true);
  return career;
}

Result<SqlitePort::Career> SqlitePort::prepareCareer(Database database) {
  auto put = database.prepare("REPLACE INTO pieces (key, piece, shape, value) VALUES (?, ?, ?, ?)");
  auto drop = database.prepare("DELETE FROM pieces WHERE key = ? AND piece = ?");
  auto dropKey = database.prepare("DELETE FROM pieces WHERE key = ?");
  auto dropAll = database.prepare("DELETE FROM pieces");
  auto keepAside = database.prepare(
      "INSERT INTO kept_aside (key, piece, shape, value) SELECT ?1, ?2, ?3, ?4 WHERE NOT EXISTS "
      "(SELECT 1 FROM kept_aside WHERE key = ?1 AND piece = ?2 AND shape = ?3 AND value = ?4)");
  for (const auto* const statement : {&put, &drop, &dropKey, &dropAll, &keepAside}) {
    if (*statement) continue;
    // A statement that does not fit the tables: the file has our mark but not our tables.
    if (statement->error().code == SQLITE_ERROR) return damaged(statement->error().message);
    return std::unexpected(statement->error());
  }
  return Career{std::move(database),
                *std::move(put),
                *std::move(drop),
                *std::move(dropKey),
                *std::move(dropAll),
                *std::move(keepAside),
                {}};
}

Result<> SqlitePort::readPieces(Career& career) {
  const auto bad = career.database.number(tb::format("SELECT count(*) FROM pieces WHERE {}", damagedRows));
  if (!bad) return std::unexpected(bad.error());
  if (*bad > 0) {
    if (auto done = setDamagedRowsAside(career.database); !done) return done;
  }
  auto rows = career.database.prepare("SELECT key, piece, shape, value FROM pieces ORDER BY key, piece");
  if (!rows) return std::unexpected(rows.error());
  while (true) {
    const auto row = rows->step();
    if (!row) return std::unexpected(row.error());
    if (!*row) return {};
    const auto bytes = rows->bytes(3);
    career.pieces.push_back({.key = rows->text(0),
                             .shape = static_cast<Shape>(rows->number(2)),
                             .piece = rows->number(1),
                             .bytes = Bytes(bytes.begin(), bytes.end())});
  }
}

Result<> SqlitePort::apply(const StoreChange& change) {
  using enum StoreChange::Kind;
  const StoredPiece& stored = change.stored;
  const auto bound = [&stored](Statement& statement) -> Statement& {
    return statement.bind(0, std::string_view(stored.key))
        .bind(1, stored.piece)
        .bind(2, static_cast<std::int64_t>(stored.shape))
        .bind(3, std::span(stored.bytes));
  };
  switch (change.kind) {
    case put:
      return bound(career_.put).run();
    case drop:
      return career_.drop.bind(0, std::string_view(stored.key)).bind(1, stored.piece).run();
    case dropKey:
      return career_.dropKey.bind(0, std::string_view(stored.key)).run();
    case dropAll:
      return career_.dropAll.run();
    case keepAside:
      return bound(career_.keepAside).run();
  }
}

Result<> SqlitePort::applyAll(std::span<const StoreChange> changes) {
  for (const StoreChange& change : changes) {
    if (auto done = apply(change); !done) return done;
  }
  return {};
}

}  // namespace tb
