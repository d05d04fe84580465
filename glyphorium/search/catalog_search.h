// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/search/search.h"

namespace glyph {

/// The catalog and the user's own characters, searched together. It needs no configured catalog and decodes
/// only what is asked for: where the user has added nothing, making one costs as much as reading the setting,
/// else a search over the added characters is built. It does not notice later changes, see isCurrent().
/// Immutable: any number of threads may use one object.
class GLYPHORIUM_EXPORT CatalogSearch {
 public:
  /// With the characters that settingsStore() has now.
  CatalogSearch();

  /// With the characters of these hex codes or hex lists, as Glyphorium::customAddedEntityUnicodes() has
  /// them.
  explicit CatalogSearch(std::vector<std::string> addedCodes);

  /// As Search::query(). A character that the user added and that is in the catalog too is one result, the
  /// added one. Exact results of one of the two leave no room for approximate ones of the other. The index of
  /// a result is for entity(), not a place in a list.
  SearchResults query(std::string_view text, const SearchOptions& options = {}) const;

  /// The entity of a result of this object.
  Entity entity(const SearchResult& result) const;

  /// The entity of exactly that hex code or hex list ("2192", "0041,030a"), the added one if there is one;
  /// nullopt where neither the user nor the catalog has it.
  std::optional<Entity> entityOfHex(std::string_view hex) const;

  /// Whether settingsStore() still has the same codes. Make a new object where it has not.
  bool isCurrent() const;

  /// Whether the user added the result's character.
  bool isAdded(const SearchResult& result) const { return result.index < added_.size(); }

 private:
  std::vector<std::string> codes_;
  std::vector<Entity> added_;
  std::optional<Search> addedSearch_;  // none where nothing is added
};

}  // namespace glyph
