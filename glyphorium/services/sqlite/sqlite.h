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

/// An error that SQLite returned. The users of these classes catch it; it never reaches a host.
class SqliteError : public std::runtime_error {
 public:
  SqliteError(int code, const std::string& message) : std::runtime_error(message), code_(code & 0xff) {}
  /// Takes the message of the connection's last error; the connection is null if there was no memory for one.
  SqliteError(int code, sqlite3* connection);
  /// The primary result code.
  int code() const { return code_; }
  /// Whether the file is damaged or never was a database.
  bool damage() const { return code_ == SQLITE_CORRUPT || code_ == SQLITE_NOTADB; }

 private:
  int code_;
};

/// For an operation that has waited so long for a locked file: asks the LockWaitPolicy and, if it says so,
/// sleeps for a few milliseconds. False: give up.
bool waitForLock(std::chrono::milliseconds waited) noexcept;

/// A connection; used by one thread at a time.
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

/// A prepared statement.
class Statement {
 public:
  Statement(const Database& database, const char* sql);

  /// Binds the values to ?1, ?2 … anew. The statement reads texts where they are: they must outlive its
  /// steps.
  template <class... Values>
  Statement& bind(const Values&... values) {
    sqlite3_reset(statement_.get());
    int at = 0;
    (bindAt(++at, values), ...);
    return *this;
  }
  /// Whether there is a further row.
  bool step();
  /// Binds the values and runs to the end, without an interest in rows.
  template <class... Values>
  void run(const Values&... values) {
    bind(values...);
    while (step()) continue;
    sqlite3_reset(statement_.get());
  }

  std::string text(int column) const;
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
