// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/search_index/searchable_index_reader.h"

namespace provider {

/// How much of what was typed an item is; better ones come first.
enum class Exactness {
  code,  ///< all of it is its symbol or its code
  name,  ///< all of it is its name, or its name in HTML with or without "&" and ";"
  part,
};

struct Found {
  glyph::SearchableItem item;
  Exactness exactness;
};

/// The indexed characters as people look for them from the desktop. Throws nothing but for want of memory;
/// an index that cannot be read is empty.
class CharacterSearch {
 public:
  /// The best `limit` items, at most: by exactness, then as the library's search ranks the characters of the
  /// catalog, in the user's language and with its tolerance of typos; then what only the index finds, such as
  /// characters that the user added beyond the catalog.
  std::vector<Found> find(std::string_view query, std::size_t limit);

  std::optional<glyph::SearchableItem> item(std::string_view identifier);

 private:
  template <class Answer, class Question>
  Answer ask(Question question);

  glyph::SearchableIndexReader reader_;
  std::chrono::steady_clock::time_point closedUntil_{};
};

/// Whether the query asks for these items alone ("qv:" in front).
bool isScoped(std::string_view query);

}  // namespace provider
