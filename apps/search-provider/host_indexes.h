// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <map>
#include <optional>
#include <string_view>
#include <vector>

#include "glyphorium/services/search_index/searchable_index_reader.h"

namespace provider {

/// The search indexes of all hosts of this user. The index of a host is the file
/// $XDG_DATA_HOME/<application identifier>/index.sqlite. Only regular files that belong to the user are
/// read, and only a limited number of them. The index of this application comes first. An index that cannot
/// be read counts as empty. The methods throw only if memory runs out.
class HostIndexes {
 public:
  /// Returns the item with this identifier from the first index that contains it, or nullopt if no index
  /// contains it.
  std::optional<glyph::SearchableItem> item(std::string_view identifier);

  /// Returns the items that match the query: first those of the first index, then those of the second, and so
  /// on. At most `limit` items of each index.
  std::vector<glyph::SearchableItem> search(std::string_view query, int limit);

 private:
  using Clock = std::chrono::steady_clock;
  struct Index {
    glyph::SearchableIndexReader reader;
    Clock::time_point skippedUntil{};  // the index is not read before this time
  };

  void lookForFiles();
  void ask(const std::function<bool(glyph::SearchableIndexReader&)>& question);

  std::map<std::filesystem::path, Index> indexes_;
  std::vector<std::filesystem::path> files_;  // the index files, in the order in which they are searched
  Clock::time_point lookAgainAt_{};
};

}  // namespace provider
