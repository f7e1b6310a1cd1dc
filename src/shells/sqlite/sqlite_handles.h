#pragma once

// RAII wrappers for the parts of SQLite's C API that the port needs.

#include <cstddef>
#include <cstdint>
#include <expected>
#include <filesystem>
#include <memory>
#include <span>
#include <sqlite3.h>
#include <string>
#include <string_view>

namespace tb::sqlite {

// An SQLite error code with its message.
struct Error {
  int code = SQLITE_ERROR;  // primary result code
  std::string message;
};

template <class T = void>
using Result = std::expected<T, Error>;

class Database;

// A reusable prepared statement. Parameters and columns are numbered from 0.
class Statement {
 public:
  Statement& bind(int parameter, std::string_view text);
  Statement& bind(int parameter, std::int64_t number);
  Statement& bind(int parameter, std::span<const std::byte> bytes);

  // Executes a statement without results and resets it.
  Result<> run();

  // True while there is a row. Resets the statement after false or an error.
  Result<bool> step();

  [[nodiscard]] int type(int column) const;
  [[nodiscard]] std::int64_t number(int column) const;
  [[nodiscard]] std::string text(int column) const;
  [[nodiscard]] std::span<const std::byte> bytes(int column) const;  // valid until the next step

 private:
  friend class Database;
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  explicit Statement(sqlite3_stmt* statement) : statement_(statement) {}

  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

class Database {
 public:
  // Opens the file, creating it when missing. Nothing is read or written yet.
  [[nodiscard]] static Result<Database> open(const std::filesystem::path& file);

  [[nodiscard]] Result<Statement> prepare(std::string_view sql) const;
  Result<> run(std::string_view sql) const;

  // The first column of the first row.
  [[nodiscard]] Result<std::int64_t> number(std::string_view sql) const;
  [[nodiscard]] Result<std::string> text(std::string_view sql) const;

  [[nodiscard]] bool isWriteProtected() const;

  // Whether the file was deleted, moved or replaced since it was opened. What is written then is lost.
  [[nodiscard]] bool hasMoved() const;

  // Whether closing runs a checkpoint. If not, closing does not change the file.
  void tidyWhenClosed(bool tidy) const;

  // Rolls back the open transaction, if any.
  void rollBack() const;

 private:
  struct Close {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
  };
  explicit Database(sqlite3* database) : database_(database) {}
  [[nodiscard]] Result<Statement> firstRow(std::string_view sql) const;

  std::unique_ptr<sqlite3, Close> database_;
};

}  // namespace tb::sqlite
