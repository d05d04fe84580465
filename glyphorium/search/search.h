// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

namespace glyph {

namespace search {
struct Index;
}

/// The part of an entity that matches a query best.
enum class SearchField : std::uint8_t {
  character,   ///< the query contains the character itself
  code,        ///< the query contains the code point of the character
  name,        ///< Entity::name(), or the Unicode name that it replaces
  alias,       ///< an alias or an abbreviation in the Unicode Character Database
  htmlName,    ///< a name in the HTML Standard's list of character references
  searchTerm,  ///< a search term or an everyday name
  annotation,  ///< a text-to-speech name or keyword of CLDR, or a meaning or reading of a Han character
  group,       ///< only the group matches: the query is "group:…" without words
  note,        ///< a usage note, or a comment in the Unicode Character Database
  notation,    ///< how the character is written elsewhere, for example a LaTeX command
};

/// A part of Entity::name(). The offsets are in bytes, and `end` is not included.
struct SearchRange {
  std::size_t begin;
  std::size_t end;
  bool operator==(const SearchRange&) const = default;
};

struct SearchResult {
  std::size_t index;  ///< position of the entity in the list that the Search was built from
  SearchField field;
  /// The parts of the name that match words of the query, for highlighting. They are in ascending order.
  std::vector<SearchRange> nameRanges;
  /// How badly the result matches: a smaller cost means a better match. Use the cost only to merge the
  /// results of several Search objects for the same query. The scale may change.
  std::uint32_t cost = 0;
  /// Whether the query is the character itself, its code, or a whole name, search term or annotation of the
  /// character. False for a character that is in the query beside words, and for approximate results.
  bool exact = false;
};

struct SearchResults {
  std::vector<SearchResult> results;  ///< at most SearchOptions::limit results; the best result is first
  std::size_t total = 0;              ///< number of all matching characters; may be larger than the limit
  /// Whether nothing matches the query as typed. Then the search corrected words or left words out. It does
  /// not count as a change if only words that join other words ("with") are left out.
  bool approximate = false;
  /// Whether the best result lacks a word of the query. Then the results are also approximate.
  bool lacksWords = false;
};

struct SearchOptions {
  std::size_t limit = 100;  ///< maximum number of results
  /// BCP 47 tags of the user's languages ("de", "pt-BR"). The region does not count. nullopt means
  /// preferredLanguages(). The search compares only words in these languages and in English. If nothing
  /// matches, the search compares words in all languages of the catalog.
  std::optional<std::vector<std::string>> languages;
  /// The exact names of groups. If not empty, the search finds only entities of these groups.
  std::vector<std::string> groups;
  /// Whether CatalogSearch also finds characters and emoji beyond the catalog. They belong to no group, so a
  /// search in groups does not find them. Other Search objects ignore this.
  bool supplement = true;
};

/// Interactive search over a list of entities. A Search object is immutable. Any number of threads may query
/// one object, and copies share their data. The object does not refer to the list and does not notice changes
/// of the list: build a new Search for a changed list. Building takes somewhat longer than configure(), so
/// build a Search when it is first needed. For the unchanged catalog use ofCatalog(), which costs nothing.
///
/// Example of a host that shows only those displayed characters that match the user's words:
///
///     const Search search(selectedEntities());  // build it again after "contentHasChanged"
///     std::vector<Entity> found;
///     for (const SearchResult& result : search.query(typed).results) {
///       found.push_back(selectedEntities()[result.index]);
///     }
///     filteredEntities() = std::move(found);
///     NotificationCenter::defaultCenter().post({notificationName::filteredContentHasChanged});
class GLYPHORIUM_EXPORT Search {
 public:
  /// Builds a search over the entities. Several entities with the same hex code (in a selection and in a
  /// block) are one result. The result has the index of the first of these entities and belongs to the groups
  /// of all of them. If memory runs out, the Search finds nothing.
  explicit Search(std::span<const Entity> entities);

  /// Returns a search over buildInEntities() as configure() fills it. The results are the same as those of a
  /// Search that is built from that list. The library contains the index. So this call builds nothing, and
  /// all processes share the index. This also works before configure() is called: buildInEntity() then
  /// returns the entities of the results.
  static Search ofCatalog();

  /// Returns the characters that match a UTF-8 text. The text may be:
  /// - one or more words. The more of them a character matches, the better. Rare words count most. Words that
  ///   only join other words ("with") count very little. Letter case, hyphens, underscores and the diacritics
  ///   of Latin letters do not count. The last letters of a word may be missing;
  /// - a code point in a form that parseCodes() reads, also beside words ("U+2192 RIGHTWARDS ARROW");
  /// - one or more numbers without a prefix: decimal or hexadecimal code points, bytes of UTF-8, or code
  ///   units of UTF-16;
  /// - a character reference or its bare name: "&rarr;", "&rarr", "rarr", "&#8594;", "&#x2192;";
  /// - characters. The search finds each character. For a sequence (combining marks, joiners, skin tones) it
  ///   finds the precomposed character, if there is one, and then the parts of the sequence;
  /// - signs that people type in place of a character: "->", "(c)", "1/2";
  /// - how the character is written elsewhere: "\alpha", ":tada:", "alt 0176", "Compose < 3", "^K a:".
  /// If a text has several of these meanings, the search finds the characters of all meanings. The most
  /// likely characters come first.
  ///
  /// "group:arrows" before, between or after the words restricts the results to the group with that name. If
  /// no group has that name, the results are restricted to the groups that have these words in their names. A
  /// name with spaces needs quotation marks: group:"misc symbols". A text without words finds all characters
  /// of the groups, in the order of the list.
  ///
  /// If no character matches all words, the search splits words, joins words, and corrects one letter of a
  /// word. If there is still no such character, the results match most of the words.
  ///
  /// The search reads only the first 1,000 bytes and the first 32 words. There are no results if the text is
  /// empty or contains only ill-formed UTF-8, or if memory runs out.
  SearchResults query(std::string_view text, const SearchOptions& options = {}) const;

  /// Returns the position of the code point's first entity in the list that the Search was built from.
  /// Returns nullopt if the code point is not in the list.
  std::optional<std::size_t> indexOf(char32_t codePoint) const noexcept;

  /// Finds the character that the HTML Standard calls `name`, for example "rarr", and returns the position of
  /// its first entity. Letter case matters. Returns nullopt if the list does not contain such a character.
  std::optional<std::size_t> indexOfHtmlName(std::string_view name) const noexcept;

  /// Returns the size in bytes of the memory that the object and its copies share. It is 0 for ofCatalog(),
  /// whose index is part of the library. Each thread that calls query() also keeps working memory until the
  /// thread ends, for the characters that matched so far.
  std::size_t byteCount() const noexcept;

 private:
  friend class CatalogSearch;
  struct Own;
  // Returns a search of the catalog. A character that is also in `added` has the same prior as in `added`. A
  // prior says how often people want a character: see static_rank.h.
  static Search ofCatalogBeside(const Search& added);
  Search(std::shared_ptr<const search::Index> index, std::size_t byteCount);
  std::optional<std::size_t> indexOfDoc(std::uint32_t doc) const noexcept;

  std::shared_ptr<const search::Index> index_;
  std::size_t byteCount_ = 0;
};

}  // namespace glyph
