// SPDX-License-Identifier: MIT
#include "glyphorium/platform/settings_database_internal.h"

#include <fcntl.h>
#include <sqlite3.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <memory>
#include <system_error>

#include "glyphorium/platform/application.h"
#include "glyphorium/platform/private_directory_internal.h"

namespace glyph {
namespace {

constexpr int busyTimeoutMilliseconds = 5000;

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, Finalize>;

struct Close {
  void operator()(sqlite3* connection) const { sqlite3_close(connection); }
};

Statement prepare(sqlite3* connection, const char* sql) {
  sqlite3_stmt* statement = nullptr;
  sqlite3_prepare_v2(connection, sql, -1, &statement, nullptr);
  return Statement(statement);
}

bool bindText(const Statement& statement, int index, const std::string& text) {
  return sqlite3_bind_text64(statement.get(), index, text.data(), text.size(), SQLITE_TRANSIENT,
                             SQLITE_UTF8) == SQLITE_OK;
}

// Where the file really is, also when it does not exist yet.
std::filesystem::path followLinks(std::filesystem::path file) {
  std::error_code error;
  for (int links = 0; links < 40; ++links) {
    const auto target = std::filesystem::read_symlink(file, error);
    if (error) break;
    file = file.parent_path() / target;  // an absolute target replaces it all
  }
  return file;
}

std::filesystem::path withSuffix(std::filesystem::path file, std::string_view suffix) {
  return file += suffix;
}

class FileDescriptor {
 public:
  explicit FileDescriptor(int descriptor) : descriptor_(descriptor) {}
  ~FileDescriptor() {
    if (descriptor_ >= 0) ::close(descriptor_);
  }
  FileDescriptor(const FileDescriptor&) = delete;
  FileDescriptor& operator=(const FileDescriptor&) = delete;
  int get() const { return descriptor_; }

 private:
  const int descriptor_;
};

}  // namespace

using Outcome = SettingsDatabase::Outcome;

Outcome SettingsDatabase::fail(std::string error) {
  error_ = std::move(error);
  return Outcome::failed;
}

Outcome SettingsDatabase::failBySystem() {
  return fail(std::generic_category().message(errno));
}

// What the connection's last failure means.
Outcome SettingsDatabase::outcome(sqlite3* connection) {
  error_ = sqlite3_errmsg(connection);
  const int code = sqlite3_errcode(connection) & 0xFF;
  if (code == SQLITE_CORRUPT || code == SQLITE_NOTADB) {
    damaged_ = true;
    return Outcome::damaged;
  }
  if (const int system = sqlite3_system_errno(connection);
      system != 0 && (code == SQLITE_CANTOPEN || code == SQLITE_IOERR)) {
    error_ += " (" + std::generic_category().message(system) + ")";
  }
  return Outcome::failed;
}

Outcome SettingsDatabase::execute(const char* sql) {
  return sqlite3_exec(connection_, sql, nullptr, nullptr, nullptr) == SQLITE_OK ? Outcome::done
                                                                                : outcome(connection_);
}

void SettingsDatabase::close() {
  // A forked process has the handle but not the locks: even closing it would take the parent's file apart.
  if (connection_ && process_ == getpid()) {
    // Closing writes the log's pages into the file, but a damaged one is kept as it was found.
    if (damaged_) sqlite3_db_config(connection_, SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
    sqlite3_close(connection_);
  }
  connection_ = nullptr;
  configured_ = damaged_ = false;
}

bool SettingsDatabase::moved() const {
  int moved = 0;
  sqlite3_file_control(connection_, "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

Outcome SettingsDatabase::create() {
  if (!createPrivateDirectory(file_.parent_path())) return failBySystem();
  // SQLite would let the umask decide who may read it, and gives its other files the mode of this one. Only a
  // new file is opened here: closing one that a connection of this process uses would drop its locks.
  const FileDescriptor file(::open(file_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  return file.get() >= 0 || errno == EEXIST ? Outcome::done : failBySystem();
}

Outcome SettingsDatabase::open(bool createMissing) {
  if (connection_) {
    if (process_ != getpid()) return fail("the process was forked while they were in use");
    // Within a transaction the file stays the same.
    if (sqlite3_get_autocommit(connection_) == 0) return Outcome::done;
    // What SQLite has opened for reading only it does not try to write later.
    if (!(createMissing && readOnly()) && !moved()) return Outcome::done;
    close();
  }
  if (!chosenFile_.empty()) {
    std::error_code error;
    file_ = followLinks(std::filesystem::absolute(chosenFile_, error));
  } else {
    const auto directory = applicationConfigDirectory();
    if (!directory) return fail("no home directory is known");
    file_ = followLinks(*directory / "settings.sqlite");
  }
  struct stat status {};
  if (stat(file_.c_str(), &status) == 0) {
    if (!S_ISREG(status.st_mode)) return fail("it is no regular file");
  } else {
    if (errno != ENOENT) return failBySystem();
    if (!createMissing) return Outcome::absent;
    if (const Outcome created = create(); created != Outcome::done) return created;
  }
  process_ = getpid();
  // The caller's lock guards the connection, so SQLite need not.
  if (sqlite3_open_v2(file_.c_str(), &connection_, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX, nullptr) !=
      SQLITE_OK) {
    const Outcome failure = connection_ ? outcome(connection_) : fail("out of memory");
    close();
    return failure;
  }
  sqlite3_busy_timeout(connection_, busyTimeoutMilliseconds);
  return Outcome::done;
}

// Whether SQLite could open the file for reading only.
bool SettingsDatabase::readOnly() const {
  return sqlite3_db_readonly(connection_, "main") != 0;
}

Outcome SettingsDatabase::read(const std::string& key, std::string& json) {
  if (const Outcome opened = open(false); opened != Outcome::done) return opened;
  // Reading needs files beside the database. A read-only directory has no room for them, and beside a
  // read-only file they become read-only too and would keep it from being written when it may be. Without a
  // log of pending pages the file alone is all there is, and may be read as it lies.
  std::error_code error;
  const auto logSize = std::filesystem::file_size(withSuffix(file_, "-wal"), error);
  const bool complete = error || logSize == 0;
  if (complete && readOnly()) return readAlone(key, json);
  const Outcome selected = select(connection_, key, json);
  const int code = sqlite3_errcode(connection_) & 0xFF;
  const bool noRoom = selected == Outcome::failed && (code == SQLITE_CANTOPEN || code == SQLITE_READONLY);
  return complete && noRoom ? readAlone(key, json) : selected;
}

Outcome SettingsDatabase::select(sqlite3* connection, const std::string& key, std::string& json) {
  const Statement statement = prepare(connection, "SELECT value FROM setting WHERE key = ?1");
  if (!statement) {
    // The general error: there is no such table, so somebody has created the file but not written to it yet.
    return sqlite3_errcode(connection) == SQLITE_ERROR ? Outcome::absent : outcome(connection);
  }
  if (!bindText(statement, 1, key)) return outcome(connection);
  switch (sqlite3_step(statement.get())) {
    case SQLITE_ROW:
      break;
    case SQLITE_DONE:
      return Outcome::absent;
    default:
      return outcome(connection);
  }
  const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(statement.get(), 0));
  if (!text) return Outcome::absent;
  json.assign(text, static_cast<std::size_t>(sqlite3_column_bytes(statement.get(), 0)));
  return Outcome::done;
}

Outcome SettingsDatabase::readAlone(const std::string& key, std::string& json) {
  std::string uri = "file:";
  for (const char c : file_.native()) {
    uri += c == '%' ? "%25" : c == '?' ? "%3f" : c == '#' ? "%23" : std::string(1, c);
  }
  uri += "?immutable=1";
  sqlite3* opening = nullptr;
  const int flags = SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
  const bool opened = sqlite3_open_v2(uri.c_str(), &opening, flags, nullptr) == SQLITE_OK;
  const std::unique_ptr<sqlite3, Close> connection(opening);
  return opened ? select(connection.get(), key, json) : outcome(connection.get());
}

Outcome SettingsDatabase::begin() {
  if (const Outcome opened = open(true); opened != Outcome::done) return opened;
  if (damaged_) return Outcome::damaged;
  if (readOnly()) return fail("the file may not be written");
  if (!configured_) {
    // EXTRA is FULL, and still so where a write-ahead log is impossible (some network file systems) or
    // another process keeps it from being switched on just now: both are no reason to fail.
    if (const Outcome set = execute("PRAGMA synchronous = EXTRA"); set != Outcome::done) return set;
    if (execute("PRAGMA journal_mode = WAL") == Outcome::damaged) return Outcome::damaged;
    configured_ = true;
  }
  if (const Outcome begun = execute("BEGIN IMMEDIATE"); begun != Outcome::done) return begun;
  return execute(
      "CREATE TABLE IF NOT EXISTS setting (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL) WITHOUT "
      "ROWID");
}

Outcome SettingsDatabase::write(const std::string& key, const std::string& json) {
  const Statement statement = prepare(connection_,
                                      "INSERT INTO setting (key, value) VALUES (?1, ?2) "
                                      "ON CONFLICT (key) DO UPDATE SET value = excluded.value");
  if (!statement || !bindText(statement, 1, key) || !bindText(statement, 2, json) ||
      sqlite3_step(statement.get()) != SQLITE_DONE) {
    return outcome(connection_);
  }
  return Outcome::done;
}

Outcome SettingsDatabase::commit() {
  return execute("COMMIT");
}

void SettingsDatabase::rollback() {
  if (connection_ && process_ == getpid() && sqlite3_get_autocommit(connection_) == 0) {
    sqlite3_exec(connection_, "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

Outcome SettingsDatabase::putAside(std::filesystem::path& name) {
  // The lock keeps a second process, which has found the damage too, from putting aside the new file.
  const FileDescriptor directory(::open(file_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.get() < 0 || flock(directory.get(), LOCK_EX) != 0) return failBySystem();
  name.clear();
  const bool done = !connection_ || moved();
  close();
  if (done) return Outcome::done;

  auto aside = withSuffix(file_, ".damaged");
  std::error_code error;
  for (int number = 2; std::filesystem::exists(std::filesystem::symlink_status(aside, error)); ++number) {
    aside = withSuffix(file_, ".damaged" + std::to_string(number));
  }
  // The file itself last: without it, what belongs to it would be taken for the new one's.
  for (const char* const suffix : {"-journal", "-wal", "-shm", ""}) {
    if (rename(withSuffix(file_, suffix).c_str(), withSuffix(aside, suffix).c_str()) != 0 &&
        errno != ENOENT) {
      return failBySystem();
    }
  }
  name = aside;
  return Outcome::done;
}

}  // namespace glyph
