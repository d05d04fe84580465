// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/platform/searchable_index_reader.h"

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
  /// The best `limit` items, at most, that hold every word of the query: by exactness, then as the index
  /// ranks them. A code may be written as "U+2192", "0x2192", "\u2192" or "\u{2192}".
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
