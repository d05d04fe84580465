// SPDX-License-Identifier: MIT
#pragma once

#include <sqlite3.h>

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace glyph {

/// An error that SQLite returned. The library catches it, so a host never sees it.
class SqliteError : public std::runtime_error {
 public:
  SqliteError(int code, const std::string& message) : std::runtime_error(message), code_(code & 0xff) {}
  /// Uses the message of the connection's last error. If `connection` is null, because there was no memory to
  /// open it, uses the general message for the code.
  SqliteError(int code, sqlite3* connection);
  /// Returns SQLite's primary result code.
  int code() const { return code_; }
  /// Whether the error says that the file is damaged or is not a database.
  bool damage() const { return code_ == SQLITE_CORRUPT || code_ == SQLITE_NOTADB; }

 private:
  int code_;
};

/// Called repeatedly by an operation that waits for a locked file. `waited` is the time that the operation
/// has waited so far. If the LockWaitPolicy allows to continue, sleeps for a few milliseconds and returns
/// true. Otherwise returns false, and the operation must fail.
bool waitForLock(std::chrono::milliseconds waited) noexcept;

/// A connection to a database file. Only one thread at a time may use it. Its functions throw SqliteError.
/// `flags` are those of sqlite3_open_v2().
class Database {
 public:
  Database(const std::filesystem::path& file, int flags);

  void execute(const char* sql);
  sqlite3* handle() const { return connection_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  std::unique_ptr<sqlite3, Close> connection_;
};

/// A prepared statement. Its constructor, bind(), step() and run() throw SqliteError.
class Statement {
 public:
  Statement(const Database& database, const char* sql);

  /// Resets the statement and binds the values to ?1, ?2 and so on. Texts are not copied: they must stay
  /// valid until the last call of step().
  template <class... Values>
  Statement& bind(const Values&... values) {
    sqlite3_reset(statement_.get());
    int at = 0;
    (bindAt(++at, values), ...);
    return *this;
  }
  /// Moves to the next row. Returns false if there are no more rows.
  bool step();
  /// Binds the values and runs the statement to its end. Rows are ignored.
  template <class... Values>
  void run(const Values&... values) {
    bind(values...);
    while (step()) continue;
    sqlite3_reset(statement_.get());
  }

  std::string text(int column) const { return std::string(view(column)); }
  /// Returns the text of a column. It is valid until the next call of step() or bind().
  std::string_view view(int column) const;
  std::int64_t integer(int column) const { return sqlite3_column_int64(statement_.get(), column); }
  bool isNull(int column) const { return sqlite3_column_type(statement_.get(), column) == SQLITE_NULL; }

 private:
  void bindAt(int at, std::string_view text);
  void bindAt(int at, std::int64_t number);
  void bindAt(int at, const std::optional<std::string>& text);
  void bindAt(int at, const std::string& text) { bindAt(at, std::string_view(text)); }
  void check(int code) const;

  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

}  // namespace glyph
