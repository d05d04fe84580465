// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "glyphorium/search/search.h"

namespace glyph::search {

/// Collects the characters that match a query. A query can be understood in several ways (as words, as a
/// code), so a character may have several hits. "doc" is the document number of a character: see Index.
class Hits {
 public:
  struct Hit {
    /// Hits are sorted by this number. It is cost << 32 | doc. So of two hits with equal cost, the lower
    /// document number comes first: this is the character that people want more often. For a hit that
    /// addAtPosition() added, this number is the position.
    std::uint64_t order;
    std::uint32_t cost() const { return static_cast<std::uint32_t>(order >> 32); }
    std::uint32_t doc;
    SearchField field;
    bool exact;  ///< see SearchResult::exact
  };

  void add(std::uint32_t doc, std::uint32_t cost, SearchField field, bool exact) {
    all_.push_back({std::uint64_t{cost} << 32 | doc, doc, field, exact});
  }
  /// Adds a hit with cost 0. Such hits are sorted by their positions.
  void addAtPosition(std::uint32_t doc, std::uint32_t position, SearchField field) {
    all_.push_back({position, doc, field, false});
  }
  void reserveMore(std::size_t count) { all_.reserve(all_.size() + count); }
  bool empty() const { return all_.empty(); }

  struct Best {
    std::vector<Hit> hits;  ///< the best hit of each doc, sorted, best first
    std::size_t total;      ///< the number of docs that were hit, including those beyond the limit
  };
  /// Returns the hits of the `limit` best docs. `docCount` is the number of docs in the index.
  Best best(std::size_t limit, std::size_t docCount) &&;

 private:
  std::vector<Hit> all_;
};

}  // namespace glyph::search
