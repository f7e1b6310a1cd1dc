#include "shells/sqlite/sqlite_handles.h"

#include <utility>

namespace tb::sqlite {

namespace {

std::unexpected<Error> lastError(sqlite3* database) {
  return std::unexpected(Error{sqlite3_errcode(database) & 0xff, sqlite3_errmsg(database)});
}

}  // namespace

Statement& Statement::bind(int parameter, std::string_view text) {
  // The arguments outlive the execution, so SQLite does not copy them.
  sqlite3_bind_text64(statement_.get(), parameter + 1, text.empty() ? "" : text.data(), text.size(),
                      SQLITE_STATIC, SQLITE_UTF8);
  return *this;
}

Statement& Statement::bind(int parameter, std::int64_t number) {
  sqlite3_bind_int64(statement_.get(), parameter + 1, number);
  return *this;
}

Statement& Statement::bind(int parameter, std::span<const std::byte> bytes) {
  const void* const data = bytes.empty() ? static_cast<const void*>("") : bytes.data();
  sqlite3_bind_blob64(statement_.get(), parameter + 1, data, bytes.size(), SQLITE_STATIC);
  return *this;
}

Result<> Statement::run() {
  while (true) {
    const auto row = step();
    if (!row) return std::unexpected(row.error());
    if (!*row) return {};
  }
}

Result<bool> Statement::step() {
  const int code = sqlite3_step(statement_.get());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) {
    sqlite3_reset(statement_.get());
    return false;
  }
  const auto error = lastError(sqlite3_db_handle(statement_.get()));
  sqlite3_reset(statement_.get());
  return error;
}

int Statement::type(int column) const { return sqlite3_column_type(statement_.get(), column); }

std::int64_t Statement::number(int column) const { return sqlite3_column_int64(statement_.get(), column); }

std::string Statement::text(int column) const {
  const auto* const text = sqlite3_column_text(statement_.get(), column);
  if (text == nullptr) return {};
  return {reinterpret_cast<const char*>(text),
          static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

std::span<const std::byte> Statement::bytes(int column) const {
  const auto* const data = static_cast<const std::byte*>(sqlite3_column_blob(statement_.get(), column));
  return {data, static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column))};
}

Result<Database> Database::open(const std::filesystem::path& file) {
  sqlite3* opened = nullptr;
  const int flags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  const int code = sqlite3_open_v2(file.c_str(), &opened, flags, nullptr);
  Database database(opened);
  if (code != SQLITE_OK) return lastError(opened);
  return database;
}

Result<Statement> Database::prepare(std::string_view sql) const {
  sqlite3_stmt* statement = nullptr;
  const int code =
      sqlite3_prepare_v2(database_.get(), sql.data(), static_cast<int>(sql.size()), &statement, nullptr);
  if (code != SQLITE_OK) return lastError(database_.get());
  return Statement(statement);
}

Result<> Database::run(std::string_view sql) const {
  auto statement = prepare(sql);
  if (!statement) return std::unexpected(statement.error());
  return statement->run();
}

Result<Statement> Database::firstRow(std::string_view sql) const {
  auto statement = prepare(sql);
  if (!statement) return statement;
  const auto row = statement->step();
  if (!row) return std::unexpected(row.error());
  if (!*row) return std::unexpected(Error{SQLITE_ERROR, "no answer to " + std::string(sql)});
  return statement;
}

Result<std::int64_t> Database::number(std::string_view sql) const {
  return firstRow(sql).transform([](const Statement& row) { return row.number(0); });
}

Result<std::string> Database::text(std::string_view sql) const {
  return firstRow(sql).transform([](const Statement& row) { return row.text(0); });
}

bool Database::isWriteProtected() const { return sqlite3_db_readonly(database_.get(), "main") == 1; }

bool Database::hasMoved() const {
  int moved = 0;
  sqlite3_file_control(database_.get(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

void Database::tidyWhenClosed(bool tidy) const {
  sqlite3_db_config(database_.get(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, tidy ? 0 : 1, nullptr);
}

void Database::rollBack() const {
  // A failed statement may have ended the transaction already.
  if (sqlite3_get_autocommit(database_.get()) == 0) (void)run("ROLLBACK");
}

}  // namespace tb::sqlite
