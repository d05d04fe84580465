// SPDX-License-Identifier: MIT
#include "glyphorium/services/sqlite/sqlite.h"

#include <system_error>

namespace glyph {

namespace {

std::string reason(int code, sqlite3* connection) {
  if (!connection) return sqlite3_errstr(code);
  std::string message = sqlite3_errmsg(connection);
  const int primary = code & 0xff;
  if (const int system = sqlite3_system_errno(connection);
      system != 0 && (primary == SQLITE_CANTOPEN || primary == SQLITE_IOERR)) {
    message += " (" + std::generic_category().message(system) + ")";
  }
  return message;
}

}  // namespace

SqliteError::SqliteError(int code, sqlite3* connection) : SqliteError(code, reason(code, connection)) {}

Database::Database(const std::filesystem::path& file, int flags) {
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &connection, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  connection_.reset(connection);
  if (code != SQLITE_OK) throw SqliteError(code, connection);
}

void Database::execute(const char* sql) {
  const int code = sqlite3_exec(handle(), sql, nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) throw SqliteError(code, handle());
}

Statement::Statement(const Database& database, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v2(database.handle(), sql, -1, &statement, nullptr);
  statement_.reset(statement);
  if (code != SQLITE_OK) throw SqliteError(code, database.handle());
}

void Statement::check(int code) const {
  if (code != SQLITE_OK) throw SqliteError(code, sqlite3_db_handle(statement_.get()));
}

bool Statement::step() {
  const int code = sqlite3_step(statement_.get());
  if (code != SQLITE_ROW && code != SQLITE_DONE) check(code);
  return code == SQLITE_ROW;
}

std::string_view Statement::view(int column) const {
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement_.get(), column));
  const auto length = static_cast<std::size_t>(sqlite3_column_bytes(statement_.get(), column));
  return text ? std::string_view(text, length) : std::string_view();
}

void Statement::bindAt(int at, std::string_view text) {
  const char* const bytes = text.data() ? text.data() : "";  // a null pointer would bind NULL
  check(sqlite3_bind_text64(statement_.get(), at, bytes, text.size(), SQLITE_STATIC, SQLITE_UTF8));
}

void Statement::bindAt(int at, std::int64_t number) {
  check(sqlite3_bind_int64(statement_.get(), at, number));
}

void Statement::bindAt(int at, const std::optional<std::string>& text) {
  if (text) {
    bindAt(at, std::string_view(*text));
  } else {
    check(sqlite3_bind_null(statement_.get(), at));
  }
}

}  // namespace glyph
