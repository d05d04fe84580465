// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "glyphorium/export.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// The index as a file of the application, which the desktop search provider reads in its own process
/// (SearchableIndexReader). One thread, started by the first request, carries the requests out; requests that
/// wait together share a transaction, and a completion is called only after its commit. Several processes of
/// the application may write. Requests wait for locks of other processes for five seconds at most, then they
/// fail; a diagnostic line says so after one second. A damaged file is put aside under another name, what can
/// be read of it is kept, and a diagnostic line says so. A file that a later version has written, and one
/// behind a symbolic link that is no index, are left alone: every request fails.
/// Not to be used in a child process made by fork without exec.
class GLYPHORIUM_EXPORT SqliteSearchableIndex final : public SearchableIndex {
 public:
  /// Without a file: "index.sqlite" in the application's data directory, as named at the first request.
  explicit SqliteSearchableIndex(std::optional<std::filesystem::path> file = std::nullopt);
  /// Carries out what it was given, for a few seconds at most; completions of the rest then get an error.
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
