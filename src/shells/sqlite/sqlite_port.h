#pragma once

// A career in an SQLite file, for native programs on Linux.
//
// A commit is a transaction that is on disk when commit() returns, so a killed process or a power failure
// loses no committed action. Only one process can use the folder at a time.
//
//   pieces       the pieces of the save store, one per row
//   kept_aside   unreadable pieces, for manual recovery; the game does not read them
//
// A damaged file, or one that is not a career, is moved with its log to the folder career.damaged-<n>, never
// deleted. Every start tells where it is until that folder is gone. A file that the disk cannot read is not
// damaged: the game does not start and changes nothing. If single rows are damaged, they are moved to
// kept_aside and the rest of the career is loaded.

#include <expected>
#include <filesystem>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "core/notice.h"
#include "core/save_store.h"
#include "shells/sqlite/save_folder.h"
#include "shells/sqlite/sqlite_handles.h"

namespace tb {

class SqlitePort : public StorePort {
 public:
  // Opens the career in the folder, or creates one. Reads the whole file, so that damage is found before the
  // game starts.
  [[nodiscard]] static std::expected<std::unique_ptr<SqlitePort>, OpenFailure> open(
      const std::filesystem::path& folder);

  // A notice about where damaged careers are, if any.
  [[nodiscard]] const std::optional<Notice>& notice() const { return notice_; }

  std::vector<StoredPiece> load() override;
  std::expected<void, std::string> commit(std::span<const StoreChange> changes) override;

 private:
  // A verified career database with its pieces.
  struct Career {
    sqlite::Database database;
    sqlite::Statement put;
    sqlite::Statement drop;
    sqlite::Statement dropKey;
    sqlite::Statement dropAll;
    sqlite::Statement keepAside;
    std::vector<StoredPiece> pieces;  // until load() returns them
  };

  SqlitePort(FolderLock lock, Career career, std::optional<Notice> notice);
  static sqlite::Result<Career> openCareer(const std::filesystem::path& file);
  static sqlite::Result<Career> openSoundCareer(const std::filesystem::path& file);
  static sqlite::Result<Career> prepareCareer(sqlite::Database database);
  static sqlite::Result<> readPieces(Career& career);
  sqlite::Result<> apply(const StoreChange& change);
  sqlite::Result<> applyAll(std::span<const StoreChange> changes);

  FolderLock lock_;
  Career career_;
  std::optional<Notice> notice_;
};

}  // namespace tb
