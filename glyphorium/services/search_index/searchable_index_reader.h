// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// Reads the index file that a SqliteSearchableIndex writes, even while another process writes to it. A
/// reader sees only committed changes. A missing file counts as an empty index, and each call looks for the
/// file again. If the file cannot be read (it is locked for half a second, damaged or not an index), calls
/// return empty results, and error() returns the reason. A diagnostic line is then printed once, and again
/// only if the file was readable in the meantime. count(), item() and search() do not throw. Only one
/// thread at a time may use a reader.
class GLYPHORIUM_EXPORT SearchableIndexReader {
 public:
  /// Reads the index of this application; see applicationIdentifier().
  SearchableIndexReader();
  /// Reads the index in the given file.
  explicit SearchableIndexReader(std::filesystem::path file);
  ~SearchableIndexReader();
  SearchableIndexReader(SearchableIndexReader&&) noexcept;
  SearchableIndexReader& operator=(SearchableIndexReader&&) noexcept;

  /// Returns a message that says why the last call could not read the file. Empty if the call succeeded or
  /// the file is missing.
  const std::string& error() const;

  /// Returns the number of items.
  std::size_t count();
  /// Returns the item with this identifier, or nullopt if there is no such item.
  std::optional<SearchableItem> item(std::string_view uniqueIdentifier);

  /// Returns at most `limit` items that match all words of the query. The query is split into words at white
  /// space. A query word matches if it is a prefix of a word of the item, or of the part of such a word after
  /// ASCII punctuation. Case is ignored. A query has no operators. The word "qv:" in a desktop's search finds
  /// only items of this application. At the beginning of a query, no space is needed after "qv:".
  ///
  /// The order is: items whose symbol equals the query, items whose identifier equals it, items whose name
  /// equals it, then all others. Within each of these groups, items are ordered by the length of the name,
  /// then by the length of the identifier, then by the identifier. An empty query has no results.
  std::vector<SearchableItem> search(std::string_view query, int limit);

 private:
  class File;
  std::unique_ptr<File> file_;
};

}  // namespace glyph
