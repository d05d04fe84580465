// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/settings_database.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <iterator>
#include <optional>
#include <system_error>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/application/file_descriptor.h"
#include "glyphorium/services/application/private_directory.h"

namespace glyph {
namespace {

// For this long after a wait for a lock has timed out, operations do not wait for locks. Otherwise the
// waiting times of several operations in a row would add up.
constexpr auto noWaitAfterTimeout = std::chrono::seconds(30);

constexpr const char* companions[] = {"-journal", "-wal", "-shm"};

// Follows symbolic links, at most 40, and returns the path of the file itself. The file need not exist.
std::filesystem::path followLinks(std::filesystem::path file) {
  std::error_code error;
  for (int links = 0; links < 40; ++links) {
    const auto target = std::filesystem::read_symlink(file, error);
    if (error) break;
    file = file.parent_path() / target;  // operator/ with an absolute target gives the target
  }
  return file;
}

std::filesystem::path withSuffix(std::filesystem::path file, std::string_view suffix) {
  return file += suffix;
}

using Outcome = SettingsDatabase::Outcome;

// Returns true if the table of settings exists, and false if the file has no tables, like a new file. Throws
// SqliteError if the file has only other tables: then the file belongs to another program, or its list of
// tables is damaged.
bool hasTable(const Database& database) {
  try {
    const Statement valid(database, "SELECT key, value FROM setting");
    return true;
  } catch (const SqliteError& error) {
    if (error.code() != SQLITE_ERROR) throw;  // SQLITE_ERROR means that the table or a column does not exist
  }
  if (Statement(database, "SELECT 1 FROM sqlite_schema").step()) {
    throw SqliteError(SQLITE_CORRUPT, "the file has no table of settings");
  }
  return false;
}

Outcome select(const Database& database, const std::string& key, std::string& json) {
  if (!hasTable(database)) return Outcome::absent;
  Statement find(database, "SELECT value FROM setting WHERE key = ?1");
  if (!find.bind(key).step() || find.isNull(0)) return Outcome::absent;
  json = find.text(0);
  return Outcome::done;
}

// Returns true if the file ends in the middle of a page. SQLite would read the missing part as zeros.
bool isCut(const Database& database, const std::filesystem::path& file) {
  struct stat status {};
  if (stat(file.c_str(), &status) != 0) return false;
  Statement pageSize(database, "PRAGMA page_size");  // known only after SQLite has read the file
  return pageSize.step() && status.st_size % pageSize.integer(0) != 0;
}

}  // namespace

Outcome SettingsDatabase::fail(std::string error) {
  error_ = std::move(error);
  return Outcome::failed;
}

Outcome SettingsDatabase::failBySystem() {
  return fail(std::generic_category().message(errno));
}

template <class Step>
Outcome SettingsDatabase::attempt(Step step) try {
  return step();
} catch (const SqliteError& error) {
  error_ = error.code() == SQLITE_BUSY ? "another program has locked the file" : error.what();
  if (!error.damage()) return Outcome::failed;
  damaged_ = true;
  return Outcome::damaged;
}

void SettingsDatabase::close() {
  if (connection_ && process_ != getpid()) {
    // A forked child process has a copy of the handle, but not the locks of its parent. Even closing the
    // handle could damage the parent's database, so the handle is never closed.
    static_cast<void>(connection_.release());
  } else if (connection_ && damaged_) {
    // When a connection is closed, SQLite normally copies the pages of the log into the file. A damaged
    // file must stay unchanged.
    sqlite3_db_config(connection_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  }
  connection_.reset();
  checked_ = configured_ = damaged_ = false;
}

int SettingsDatabase::waitWhileBusy(void* self, int attempt) {
  return static_cast<SettingsDatabase*>(self)->goOnWaiting(attempt == 0);
}

bool SettingsDatabase::goOnWaiting(bool first) {
  const auto now = Clock::now();
  if (first) waitBegan_ = now;
  if (lastTimeout_ && now - *lastTimeout_ < noWaitAfterTimeout) return false;
  if (waitForLock(std::chrono::duration_cast<std::chrono::milliseconds>(now - waitBegan_))) return true;
  lastTimeout_ = now;
  return false;
}

void SettingsDatabase::connect() {
  process_ = getpid();
  // The caller locks its own mutex around every use of the connection, so the connection needs no mutex of
  // SQLite.
  connection_ = std::make_unique<Database>(file_, SQLITE_OPEN_READWRITE);
  sqlite3_busy_handler(connection_->handle(), waitWhileBusy, this);
}

// Throws SqliteError if the file is damaged. Without this check, SQLite finds damage only on the pages that
// it reads, and not even all damage there. A row on a damaged page would then count as missing and be
// overwritten.
void SettingsDatabase::check(Database& database) const {
  Statement check(database, "PRAGMA quick_check(1)");
  if (check.step() && check.text(0) != "ok") throw SqliteError(SQLITE_CORRUPT, check.text(0));
  if (isCut(database, file_)) {
    // If the machine crashed while a page was written, the page may be incomplete in the file but complete in
    // the write-ahead log. A checkpoint then completes the file.
    sqlite3_wal_checkpoint_v2(database.handle(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    if (isCut(database, file_)) throw SqliteError(SQLITE_CORRUPT, "the end of the file is missing");
  }
  hasTable(database);
}

bool SettingsDatabase::moved() const {
  int moved = 0;
  sqlite3_file_control(connection_->handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
  return moved != 0;
}

Outcome SettingsDatabase::create() {
  if (!createPrivateDirectory(file_.parent_path())) return failBySystem();
  // Create the file with private permissions before SQLite opens it. Otherwise the umask would decide who
  // may read the file. SQLite gives its other files the same permissions. O_EXCL makes sure that only a new
  // file is opened here: closing a file that a connection of this process uses would release the locks of
  // that connection.
  const FileDescriptor file(::open(file_.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, 0600));
  return file.get() >= 0 || errno == EEXIST ? Outcome::done : failBySystem();
}

Outcome SettingsDatabase::open(bool createMissing) {
  if (connection_) {
    if (process_ != getpid()) return fail("the process was forked while they were in use");
    // During a transaction, keep the file open even if it was renamed.
    if (sqlite3_get_autocommit(connection_->handle()) == 0) return Outcome::done;
    // SQLite does not try to write to a file that it has opened only for reading. Close such a file and open
    // it again.
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
    if (!S_ISREG(status.st_mode)) return fail("it is not a regular file");
  } else {
    if (errno != ENOENT) return failBySystem();
    if (!createMissing) return Outcome::absent;
    if (const Outcome created = create(); created != Outcome::done) return created;
  }
  connect();
  return Outcome::done;
}

// Returns true if SQLite could open the file for reading, but not for writing.
bool SettingsDatabase::readOnly() const {
  return sqlite3_db_readonly(connection_->handle(), "main") != 0;
}

Outcome SettingsDatabase::read(const std::string& key, std::string& json) {
  return attempt([&] {
    if (const Outcome opened = open(false); opened != Outcome::done) return opened;
    // To read, SQLite creates other files beside the database. This fails if the directory is read-only or
    // the disk is full. If the database is read-only, SQLite makes these files read-only too, and they would
    // prevent writing after the database becomes writable again. If the log and the journal are empty, the
    // database file alone is complete and can be read without the other files.
    std::error_code error;
    const auto empty = [&](const char* suffix) {
      const auto size = std::filesystem::file_size(withSuffix(file_, suffix), error);
      return error || size == 0;
    };
    const bool complete = empty("-wal") && empty("-journal");
    if (complete && readOnly()) return readAlone(key, json);
    try {
      if (!checked_ || isCut(*connection_, file_)) check(*connection_);
      checked_ = true;
      return select(*connection_, key, json);
    } catch (const SqliteError& failure) {
      const bool cannotCreate = failure.code() == SQLITE_CANTOPEN || failure.code() == SQLITE_READONLY ||
                                failure.code() == SQLITE_IOERR || failure.code() == SQLITE_FULL;
      if (!complete || !cannotCreate) throw;
    }
    return readAlone(key, json);
  });
}

Outcome SettingsDatabase::readAlone(const std::string& key, std::string& json) {
  std::string uri = "file:";
  for (const char c : file_.native()) {
    uri += c == '%' ? "%25" : c == '?' ? "%3f" : c == '#' ? "%23" : std::string(1, c);
  }
  Database database(uri + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI);
  check(database);
  return select(database, key, json);
}

Outcome SettingsDatabase::begin() {
  return attempt([&] {
    if (const Outcome opened = open(true); opened != Outcome::done) return opened;
    if (damaged_) return Outcome::damaged;
    if (readOnly()) return fail("the file is read-only");
    if (!checked_ || isCut(*connection_, file_)) check(*connection_);
    checked_ = true;
    if (!configured_) {
      // With a write-ahead log, EXTRA is the same as FULL. Without one, only EXTRA keeps a commit through a
      // power failure. Some network file systems do not support a write-ahead log, and another process may
      // prevent the switch at this moment. In both cases, continue without a write-ahead log.
      connection_->execute("PRAGMA synchronous = EXTRA");
      try {
        connection_->execute("PRAGMA journal_mode = WAL");
      } catch (const SqliteError& error) {
        if (error.damage()) throw;
      }
      configured_ = true;
    }
    connection_->execute(
        "BEGIN IMMEDIATE;"
        "CREATE TABLE IF NOT EXISTS setting (key TEXT PRIMARY KEY NOT NULL, value TEXT NOT NULL) WITHOUT "
        "ROWID");
    lastTimeout_.reset();
    return Outcome::done;
  });
}

Outcome SettingsDatabase::write(const std::string& key, const std::string& json) {
  return attempt([&] {
    Statement(*connection_,
              "INSERT INTO setting (key, value) VALUES (?1, ?2) "
              "ON CONFLICT (key) DO UPDATE SET value = excluded.value")
        .run(key, json);
    return Outcome::done;
  });
}

Outcome SettingsDatabase::commit() {
  return attempt([&] {
    connection_->execute("COMMIT");
    return Outcome::done;
  });
}

void SettingsDatabase::rollback() {
  if (connection_ && process_ == getpid() && sqlite3_get_autocommit(connection_->handle()) == 0) {
    sqlite3_exec(connection_->handle(), "ROLLBACK", nullptr, nullptr, nullptr);
  }
}

Outcome SettingsDatabase::putAside(std::filesystem::path& name) {
  name.clear();
  // Another process may have found the damage too. The lock prevents that process from renaming the new file.
  const FileDescriptor directory(::open(file_.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (directory.get() < 0) return failBySystem();
  for (bool first = true; flock(directory.get(), LOCK_EX | LOCK_NB) != 0; first = false) {
    if (errno != EWOULDBLOCK || !goOnWaiting(first)) return failBySystem();
  }
  const bool replaced = !connection_ || moved();
  close();
  if (replaced) return Outcome::done;
  // Check the file again. What looked like damage may have been an incomplete write of another program.
  const Outcome again = attempt([&] {
    connect();
    check(*connection_);
    return Outcome::done;
  });
  close();
  if (again != Outcome::damaged) return again;

  std::error_code error;
  const auto taken = [&](const std::filesystem::path& file) {
    return std::filesystem::exists(std::filesystem::symlink_status(file, error));
  };
  auto aside = withSuffix(file_, ".damaged");
  for (int number = 2;
       taken(aside) || std::any_of(std::begin(companions), std::end(companions),
                                   [&](auto suffix) { return taken(withSuffix(aside, suffix)); });
       ++number) {
    aside = withSuffix(file_, ".damaged" + std::to_string(number));
  }
  const auto move = [&](const char* suffix) {
    return rename(withSuffix(file_, suffix).c_str(), withSuffix(aside, suffix).c_str()) == 0 ||
           errno == ENOENT;
  };
  // Rename the database file last. If it were renamed first, SQLite could use the remaining log or journal
  // for the new database.
  if (!std::all_of(std::begin(companions), std::end(companions), move) || !move("")) return failBySystem();
  name = aside;
  return Outcome::done;
}

}  // namespace glyph
