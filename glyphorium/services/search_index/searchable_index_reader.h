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

/// Reads the index file that a SqliteSearchableIndex writes, also while another process writes it; it sees
/// what is committed. A missing file is an empty index, and is looked for again at every question. A file
/// that cannot be read (locked for half a second, damaged, no index) gives empty answers; error() tells why,
/// and a diagnostic line says so once until it can be read again. The questions throw nothing. Used by one
/// thread at a time.
class GLYPHORIUM_EXPORT SearchableIndexReader {
 public:
  /// The index of this application (applicationIdentifier()), or another file.
  SearchableIndexReader();
  explicit SearchableIndexReader(std::filesystem::path file);
  ~SearchableIndexReader();
  SearchableIndexReader(SearchableIndexReader&&) noexcept;
  SearchableIndexReader& operator=(SearchableIndexReader&&) noexcept;

  /// Why the last question could not be answered, for people; empty where it was.
  const std::string& error() const;

  /// The number of items.
  std::size_t count();
  /// The item of this identifier.
  std::optional<SearchableItem> item(std::string_view uniqueIdentifier);

  /// The items that hold every word of the query, which stands between white space, at the beginning of a
  /// word of theirs or of a part of it between ASCII punctuation; case is ignored, and nothing in a query is
  /// an operator. "qv:" at its front may stand without a space. First those whose symbol, identifier or name
  /// is the query; then shorter names first, then shorter and lower identifiers. At most `limit`.
  std::vector<SearchableItem> search(std::string_view query, int limit);

 private:
  class File;
  std::unique_ptr<File> file_;
};

}  // namespace glyph
