// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <memory>
#include <optional>

#include "glyphorium/export.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// The index as a file of the application's own, which the desktop search provider reads in its process
/// (SearchableIndexReader). One thread, started by the first request, carries the requests out; requests that
/// wait together share a transaction, and a completion is called only after its commit. Several processes of
/// the application may write. A damaged file is emptied, which the diagnostics say.
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
