// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/settings_database.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <optional>
#include <system_error>

#include "glyphorium/services/application/application.h"
#include "glyphorium/services/application/private_directory.h"

namespace glyph {
namespace {

constexpr int busyTimeoutMilliseconds = 5000;

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

using Outcome = SettingsDatabase::Outcome;

Outcome select(const Database& database, const std::string& key, std::string& json) {
  std::optional<Statement> find;
  try {
    find.emplace(database, "SELECT value FROM setting WHERE key = ?1");
  } catch (const SqliteError& error) {
    // The general error: there is no such table, so somebody has created the file but not written to it yet.
    if (error.code() == SQLITE_ERROR) return Outcome::absent;
    throw;
  }
  if (!find->bind(key).step() || find->isNull(0)) return Outcome::absent;
  json = find->text(0);
  return Outcome::done;
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
  error_ = error.what();
  if (!error.damage()) return Outcome::failed;
  damaged_ = true;
  return Outcome::damaged;
}

void SettingsDatabase::close() {
  if (connection_ && process_ != getpid()) {
    // A forked process has the handle but not the locks: even closing it would take the parent's file apart.
    static_cast<void>(connection_.release());
  } else if (connection_ && damaged_) {
    // Closing writes the log's pages into the file, but a damaged one is kept as it was found.
    sqlite3_db_config(connection_->handle(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
  }
  connection_.reset();
  configured_ = damaged_ = false;
}

bool SettingsDatabase::moved() const {
  int moved = 0;
  sqlite3_file_control(connection_->handle(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
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
    if (sqlite3_get_autocommit(connection_->handle()) == 0) return Outcome::done;
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
  connection_ = std::make_unique<Database>(file_, SQLITE_OPEN_READWRITE);
  sqlite3_busy_timeout(connection_->handle(), busyTimeoutMilliseconds);
  return Outcome::done;
}

// Whether SQLite could open the file for reading only.
bool SettingsDatabase::readOnly() const {
  return sqlite3_db_readonly(connection_->handle(), "main") != 0;
}

Outcome SettingsDatabase::read(const std::string& key, std::string& json) {
  return attempt([&] {
    if (const Outcome opened = open(false); opened != Outcome::done) return opened;
    // Reading needs files beside the database. A read-only directory has no room for them, and beside a
    // read-only file they become read-only too and would keep it from being written when it may be. Without
    // a log of pending pages the file alone is all there is, and may be read as it lies.
    std::error_code error;
    const auto logSize = std::filesystem::file_size(withSuffix(file_, "-wal"), error);
    const bool complete = error || logSize == 0;
    if (complete && readOnly()) return readAlone(key, json);
    try {
      return select(*connection_, key, json);
    } catch (const SqliteError& failure) {
      const bool noRoom = failure.code() == SQLITE_CANTOPEN || failure.code() == SQLITE_READONLY;
      if (!complete || !noRoom) throw;
    }
    return readAlone(key, json);
  });
}

Outcome SettingsDatabase::readAlone(const std::string& key, std::string& json) {
  std::string uri = "file:";
  for (const char c : file_.native()) {
    uri += c == '%' ? "%25" : c == '?' ? "%3f" : c == '#' ? "%23" : std::string(1, c);
  }
  return select(Database(uri + "?immutable=1", SQLITE_OPEN_READONLY | SQLITE_OPEN_URI), key, json);
}

Outcome SettingsDatabase::begin() {
  return attempt([&] {
    if (const Outcome opened = open(true); opened != Outcome::done) return opened;
    if (damaged_) return Outcome::damaged;
    if (readOnly()) return fail("the file may not be written");
    if (!configured_) {
      // EXTRA is FULL, and still so where a write-ahead log is impossible (some network file systems) or
      // another process keeps it from being switched on just now: both are no reason to fail.
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
