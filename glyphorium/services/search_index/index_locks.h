// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>
#include <chrono>
#include <filesystem>
#include <optional>

#include "glyphorium/services/application/file_descriptor.h"

namespace glyph {

/// Limits the time for which a batch of requests waits for locks of other processes. The LockWaitPolicy
/// gets the time that the batch has waited for all locks together. After one second, a diagnostic line
/// is printed. Only one thread may use a LockWait, except that any thread may call abandon() and abandoned().
class LockWait {
 public:
  /// Resets the waiting time to zero for the next batch. The diagnostic line contains the path `file`,
  /// which must outlive the LockWait.
  void renew(const std::filesystem::path& file) noexcept;
  /// Sleeps for a few milliseconds and returns true. Returns false immediately if the
  /// LockWaitPolicy refuses to wait longer or abandon() was called.
  bool pause() noexcept;
  /// pause() as a callback for sqlite3_busy_handler(). The first argument is a pointer to the LockWait.
  static int whileBusy(void* lockWait, int) noexcept { return static_cast<LockWait*>(lockWait)->pause(); }

  /// Stops all waiting: from now on, pause() returns false. Any thread may call this.
  void abandon() { abandoned_ = true; }
  bool abandoned() const { return abandoned_; }

 private:
  const std::filesystem::path* file_ = nullptr;
  std::optional<std::chrono::steady_clock::time_point> since_;  // the time of the batch's first pause
  bool reported_ = false;  // whether the diagnostic line of this batch was printed
  std::atomic<bool> abandoned_ = false;
};

/// An exclusive lock on the directory of the index file. A process has this lock while it opens, renames or
/// deletes the index. Thus no process opens an index while another process renames its files (the database
/// and its write-ahead log), and only one of several processes that detect the same damage repairs the file.
/// The constructor throws SqliteError if the directory does not exist, or if the lock is not free in time.
class DirectoryLock {
 public:
  DirectoryLock(const std::filesystem::path& file, LockWait& wait);

 private:
  FileDescriptor directory_;
};

}  // namespace glyph
