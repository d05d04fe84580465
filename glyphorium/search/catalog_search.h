// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/search/search.h"
#include "glyphorium/state/skin_tone.h"

namespace glyph {

/// Searches the catalog, the characters that the user added, and all other characters and emoji of Unicode:
/// the supplement. It works without configure() and decodes only the entities that the caller asks for. If
/// there are added characters, the constructor builds a Search over them. The object keeps the added
/// characters and the preferred skin tone of the time when it was made: see isCurrent(). Immutable: any
/// number of threads may use one object.
class GLYPHORIUM_EXPORT CatalogSearch {
 public:
  /// Uses the added characters that settingsStore() has at the time of the call.
  CatalogSearch();

  /// Makes these characters, which the user has added, part of the search. Each is a hex code, or several hex
  /// codes for an emoji of several code points, in the form that Glyphorium::customAddedEntityUnicodes()
  /// returns. A code for which no name is known is ignored.
  explicit CatalogSearch(std::vector<std::string> addedCodes);

  /// Searches like Search::query(). If a character is both added and in the catalog or the supplement, only
  /// the added one is in the results. If the catalog, the added characters or the supplement match the query
  /// as typed, the approximate results of the other two are dropped. Of equally good results, those of the
  /// catalog come first. Han characters, which are found by their meanings and readings, come last.
  ///
  /// An emoji and its variants with skin tones are one result. Words such as "medium skin tone" in the text
  /// choose the variant. Without such words, emoji have the preferredSkinTone() of the time when the object
  /// was made. But an emoji that is itself in the text keeps its tone.
  ///
  /// SearchResult::index is not a position in a list: pass the result to entity() instead. With
  /// SearchOptions::supplement false, only the catalog and the added characters are searched.
  SearchResults query(std::string_view text, const SearchOptions& options = {}) const;

  /// Returns the entity of a result that query() of this object returned. Returns an empty entity if the
  /// index of the result is out of range.
  Entity entity(const SearchResult& result) const;

  /// Returns the entity whose hex code or hex list is exactly this text ("2192", "0041,030a", "1f1e9,1f1ea").
  /// If a character is both added and in the catalog, returns the added one. Returns nullopt if the text is
  /// neither an emoji nor a character that has a name.
  std::optional<Entity> entityOfHex(std::string_view hex) const;

  /// Returns true if settingsStore() still has the added codes and the skin tone that this object uses. If it
  /// returns false, make a new object.
  bool isCurrent() const;

  /// Returns true if the result of this object is a character that the user added.
  bool isOfUser(const SearchResult& result) const { return result.index < added_.size(); }

  /// Returns true if the result is a character of the catalog that the user did not add. Any other result was
  /// added by the user or is in the supplement. Only entity() returns the entities of such results.
  bool isInCatalog(const SearchResult& result) const;

  /// Returns the position in Glyphorium::buildInEntities() of a result for which isInCatalog() is true. A
  /// host that has configured the catalog reads the entity there, which is much faster than entity() for
  /// thousands of results.
  std::size_t buildInPlace(const SearchResult& result) const { return result.index - added_.size(); }

 private:
  std::optional<std::size_t> addedAt(std::size_t place) const;
  void useTone(SearchResults& found) const;

  std::vector<std::string> codes_;
  SkinTone tone_;
  std::vector<Entity> added_;
  std::optional<Search> addedSearch_;  // empty if the user added no characters
  Search catalog_ = Search::ofCatalog();
  // For each added character that is also in the catalog or the supplement, its place there (see
  // supplement_search.h) and its position in added_. Sorted.
  std::vector<std::pair<std::size_t, std::size_t>> known_;
};

}  // namespace glyph
