// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/index_locks.h"

#include <fcntl.h>
#include <sys/file.h>

#include <cerrno>
#include <string>
#include <system_error>
#include <utility>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/sqlite/sqlite.h"

namespace glyph {
namespace {

using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto longWait = 1s;

std::filesystem::path directoryOf(const std::filesystem::path& file) {
  return file.has_parent_path() ? file.parent_path() : ".";
}

}  // namespace

void LockWait::renew(const std::filesystem::path& file) noexcept {
  file_ = &file;
  since_.reset();
  reported_ = false;
}

bool LockWait::pause() noexcept {
  if (abandoned_) return false;
  const auto now = steady_clock::now();
  if (!since_) since_ = now;
  const auto waited = now - *since_;
  if (waited >= longWait && !std::exchange(reported_, true)) {
    try {
      printProblem("Waiting for another program that has locked the search index: " + file_->string());
    } catch (const std::bad_alloc&) {  // without memory, the line is not printed
    }
  }
  return waitForLock(std::chrono::duration_cast<std::chrono::milliseconds>(waited));
}

DirectoryLock::DirectoryLock(const std::filesystem::path& file, LockWait& wait)
    : directory_(open(directoryOf(file).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {
  const auto fail = [&](int code, int error) {
    throw SqliteError(code, directoryOf(file).string() + ": " + std::generic_category().message(error));
  };
  if (!directory_.isOpen()) fail(SQLITE_CANTOPEN, errno);
  while (flock(directory_.get(), LOCK_EX | LOCK_NB) != 0) {
    const int error = errno;
    // Some network file systems do not support flock(). There, only SQLite's own locks protect the index.
    if (error != EWOULDBLOCK && error != EINTR) return;
    if (!wait.pause()) fail(SQLITE_BUSY, EWOULDBLOCK);
  }
}

}  // namespace glyph
