// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <optional>

namespace glyph {

/// The time that one batch of requests waits for locks of other processes: five seconds in all, however many
/// locks it needs. A diagnostic line says so once it has waited for a second.
class LockWait {
 public:
  /// Gives the next batch the whole time again. The diagnostic line names the file, which must outlive this.
  void renew(const std::filesystem::path& file) noexcept;
  /// Sleeps for a moment. False without sleeping once the time is over or abandon() was called.
  bool pause() noexcept;
  /// The form of pause() that sqlite3_busy_handler() takes, with the LockWait as its first argument.
  static int whileBusy(void* lockWait, int) noexcept { return static_cast<LockWait*>(lockWait)->pause(); }

  /// From now on nothing waits. Any thread may call this.
  void abandon() { abandoned_ = true; }
  bool abandoned() const { return abandoned_; }

 private:
  const std::filesystem::path* file_ = nullptr;
  std::optional<std::chrono::steady_clock::time_point> since_;  // the first pause of the batch
  bool told_ = false;
  std::atomic<bool> abandoned_ = false;
};

/// The lock of the directory of the index file, which must exist. While a process opens the index or puts it
/// aside, it holds this lock: so nobody opens a file whose companions (the log) are just being renamed, and
/// of several processes that see the same damage one repairs it. Throws SqliteError where the lock is not
/// free in time.
class DirectoryLock {
 public:
  DirectoryLock(const std::filesystem::path& file, LockWait& wait);
  ~DirectoryLock();
  DirectoryLock(const DirectoryLock&) = delete;
  DirectoryLock& operator=(const DirectoryLock&) = delete;

 private:
  int descriptor_;
};

}  // namespace glyph
