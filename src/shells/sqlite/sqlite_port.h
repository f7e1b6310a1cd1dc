#pragma once

// A career in a SQLite file, for everything that runs on Linux.
//
// One commit is one transaction, on the disk before commit() returns: a killed process or a power cut loses
// no committed action and shows none by half. The folder belongs to one process at a time.
//
//   pieces       what the save store holds, one row a piece
//   kept_aside   what could not be understood; nothing reads it but people who look for something lost
//
// A file that is damaged, or that is no career, is never deleted: it moves aside as
// career.damaged-<n>.sqlite. Where single rows are damaged, all of their keys' rows go to kept_aside and the
// rest of the career loads.

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
  // Opens the career in the folder, or begins one. Everything is read at once, so that damage anywhere in the
  // file shows before the first week is played.
  [[nodiscard]] static std::expected<std::unique_ptr<SqlitePort>, OpenFailure> open(
      const std::filesystem::path& folder);

  // What the player has to know about the opening: where a damaged career was put.
  [[nodiscard]] const std::optional<Notice>& notice() const { return notice_; }

  std::vector<StoredPiece> load() override;
  std::expected<void, std::string> commit(std::span<const StoreChange> changes) override;

 private:
  // A database that is known to be a sound career, with what it holds.
  struct Career {
    sqlite::Database database;
    sqlite::Statement put;
    sqlite::Statement drop;
    sqlite::Statement dropKey;
    sqlite::Statement dropAll;
    sqlite::Statement keepAside;
    std::vector<StoredPiece> pieces;  // until load() hands them over
  };

  SqlitePort(FolderLock lock, Career career, std::optional<Notice> notice);
  static sqlite::Result<Career> openCareer(const std::filesystem::path& file);
  static sqlite::Result<Career> prepareCareer(sqlite::Database database);
  static sqlite::Result<> readPieces(Career& career);
  sqlite::Result<> apply(const StoreChange& change);
  sqlite::Result<> applyAll(std::span<const StoreChange> changes);

  FolderLock lock_;
  Career career_;
  std::optional<Notice> notice_;
};

}  // namespace tb
