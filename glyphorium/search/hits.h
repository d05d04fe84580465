// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "glyphorium/search/search.h"

namespace glyph::search {

/// What the readings of a query find. A character may be hit several times.
class Hits {
 public:
  struct Hit {
    std::uint64_t order;  ///< cost << 32 | doc: of equal costs the doc with the better static rank is first
    std::uint32_t cost() const { return static_cast<std::uint32_t>(order >> 32); }
    std::uint32_t doc;
    SearchField field;
  };

  void add(std::uint32_t doc, std::uint32_t cost, SearchField field) {
    all_.push_back({std::uint64_t{cost} << 32 | doc, doc, field});
  }
  /// With cost 0; such hits are in the order of their positions.
  void addAtPosition(std::uint32_t doc, std::uint32_t position, SearchField field) {
    all_.push_back({position, doc, field});
  }
  void reserveMore(std::size_t count) { all_.reserve(all_.size() + count); }
  bool empty() const { return all_.empty(); }

  struct Best {
    std::vector<Hit> hits;  ///< each doc once, by its best hit; the best doc first
    std::size_t total;      ///< number of docs, those beyond the limit included
  };
  Best best(std::size_t limit, std::size_t docCount) &&;

 private:
  std::vector<Hit> all_;
};

}  // namespace glyph::search
