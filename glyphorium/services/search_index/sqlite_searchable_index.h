// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "glyphorium/export.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// An index in a file of the application. The desktop search provider reads this file in its own process,
/// with a SearchableIndexReader.
///
/// A single thread carries out the requests; the first request starts it. Waiting requests share a
/// transaction, and a completion is called only after the commit. Several processes of the application may
/// write to the file. Requests wait for the locks of other processes as setLockWaitPolicy() describes, by
/// default at most five seconds, and then fail. A diagnostic line is printed after one second.
///
/// A damaged file is renamed, the items that can still be read are copied into a new file, and a diagnostic
/// line is printed. Two kinds of files are never changed; requests fail on them: a file that a later
/// version of the library has written, and a file that is not an index and is reached through a symbolic
/// link.
///
/// A child process that was created by fork() without exec() must not use this object.
class GLYPHORIUM_EXPORT SqliteSearchableIndex final : public SearchableIndex {
 public:
  /// nullopt means "index.sqlite" in the application's data directory. The path of this directory is
  /// determined at the first request.
  explicit SqliteSearchableIndex(std::optional<std::filesystem::path> file = std::nullopt);
  /// Waits a few seconds at most until all requests are carried out. The completions of the remaining
  /// requests then get an error.
  ~SqliteSearchableIndex() override;
  SqliteSearchableIndex(const SqliteSearchableIndex&) = delete;
  SqliteSearchableIndex& operator=(const SqliteSearchableIndex&) = delete;

  void indexItems(std::vector<SearchableItem> items, Completion completion) override;
  void deleteItems(std::vector<std::string> identifiers, Completion completion) override;
  void deleteAllItems(Completion completion) override;
  bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress = {}) override;

 private:
  class Worker;
  std::shared_ptr<Worker> worker_;
};

}  // namespace glyph
