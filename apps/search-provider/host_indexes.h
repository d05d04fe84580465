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

/// The search indexes of all hosts of this user: the file index.sqlite in the directory that a host's
/// application identifier names in $XDG_DATA_HOME. Only regular files that belong to the user are read, a
/// bounded number of them, those of this project's own hosts first. Throws nothing but for want of memory; an
/// index that cannot be read is empty.
class HostIndexes {
 public:
  /// The item of that identifier in the first index that has one.
  std::optional<glyph::SearchableItem> item(std::string_view identifier);

  /// What each index finds, one index after the other, at most `limit` items of each.
  std::vector<glyph::SearchableItem> search(std::string_view query, int limit);

 private:
  using Clock = std::chrono::steady_clock;
  struct Index {
    glyph::SearchableIndexReader reader;
    Clock::time_point closedUntil{};
  };

  void lookForFiles();
  void ask(const std::function<bool(glyph::SearchableIndexReader&)>& question);

  std::map<std::filesystem::path, Index> indexes_;
  std::vector<std::filesystem::path> files_;  // of indexes_, in the order to ask them
  Clock::time_point lookAgainAt_{};
};

}  // namespace provider
