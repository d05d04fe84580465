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
  code,        ///< the query contains its code point
  name,        ///< Entity::name(), or the name in the Unicode table that a better name replaces
  alias,       ///< a formal alias or an abbreviation in the Unicode Character Database
  htmlName,    ///< a name in the HTML Standard's list of character references
  searchTerm,  ///< a search term or an everyday name
  annotation,  ///< a text-to-speech name or keyword of CLDR
  group,       ///< only the group: the query is "group:…" without words
  note,        ///< a usage note
};

/// A part of Entity::name(), in bytes: [begin, end).
struct SearchRange {
  std::size_t begin;
  std::size_t end;
  bool operator==(const SearchRange&) const = default;
};

struct SearchResult {
  std::size_t index;  ///< position of the entity in the list that the Search was built from
  SearchField field;
  /// The parts of the name that the words of the query match, ascending, for highlighting.
  std::vector<SearchRange> nameRanges;
  /// How badly the result matches: smaller is better. Its only use is to put the results of several Searches
  /// for one query in one order. The scale may change.
  std::uint32_t cost = 0;
  /// The query is the character, its code, or the whole of one of its texts: a name, a term, an annotation.
  /// Signs between words do not count. False if the results are approximate.
  bool exact = false;
};

struct SearchResults {
  std::vector<SearchResult> results;  ///< best first, at most SearchOptions::limit
  std::size_t total = 0;              ///< number of matching characters, those beyond the limit included
  /// Nothing matches the query as it stands. The results are of a query with corrected or fewer words.
  bool approximate = false;
};

struct SearchOptions {
  std::size_t limit = 100;
  /// BCP 47 tags of the user's languages ("de", "pt-BR"; the region does not count); nullopt:
  /// preferredLanguages(). Only words in these languages and in English are searched. If that gives nothing,
  /// words in all languages of the catalog are.
  std::optional<std::vector<std::string>> languages;
  /// If not empty, only entities of the groups with these exact names are found.
  std::vector<std::string> groups;
};

/// The interactive search over a list of entities. Immutable: any number of threads may query one object, and
/// copies share their data. It does not refer to the list and does not notice its changes: build a new Search
/// for a changed list. Building takes somewhat longer than configure(), so build it when it is first needed.
/// For the unchanged catalog use ofCatalog(), which costs nothing.
///
/// A host that shows which of the displayed characters match the user's words:
///
///     const Search search(selectedEntities());  // once, and again after "contentHasChanged"
///     std::vector<Entity> found;
///     for (const SearchResult& result : search.query(typed).results) {
///       found.push_back(selectedEntities()[result.index]);
///     }
///     filteredEntities() = std::move(found);
///     NotificationCenter::defaultCenter().post({notificationName::filteredContentHasChanged});
class GLYPHORIUM_EXPORT Search {
 public:
  /// Several entities with one hex code (in a selection and in their block) are one result, with the index of
  /// the first. It is in all their groups. If memory runs out, the Search finds nothing.
  explicit Search(std::span<const Entity> entities);

  /// The search over buildInEntities() as configure() fills it, with the same results as a Search built from
  /// that list. The library contains its index, so this call builds nothing, all processes share the index,
  /// and the catalog need not be configured: buildInEntity() gives the entities of the results.
  static Search ofCatalog();

  /// The characters that match a UTF-8 text. The text is one or more words in any order. A character must
  /// match all words. Letter case, hyphens, underscores and the diacritics of Latin letters do not count, and
  /// the last letters of a word may be missing. Or the text is
  /// - a code point in a form that parseCodes() reads, also among words ("U+2192 RIGHTWARDS ARROW"), or one
  /// or
  ///   more numbers without a prefix, decimal or hexadecimal, also the bytes of UTF-8 or the units of UTF-16;
  /// - a character reference or its bare name: "&rarr;", "&rarr", "rarr", "&#8594;", "&#x2192;";
  /// - characters: each is found; of a sequence (combining marks, joiners, skin tones) its parts are, behind
  /// the
  ///   precomposed character if there is one;
  /// - signs typed for a character: "->", "(c)", "1/2".
  /// A text with several of these meanings finds the characters of all of them, the likeliest first.
  ///
  /// "group:arrows" before, between or behind the words restricts the results to the group of that name. If
  /// there is none, to the groups that have these words in their names. A name with spaces needs quotation
  /// marks: group:"misc symbols". Without words it finds the whole groups, in the order of the list.
  ///
  /// If nothing matches, the search splits and joins words and corrects them by one letter. Then it leaves
  /// out words that only join others, and words that no character matches together with the rest.
  ///
  /// Only the first 1,000 bytes and 32 words count. There are no results for an empty text, for one of only
  /// ill-formed UTF-8, and if memory runs out.
  SearchResults query(std::string_view text, const SearchOptions& options = {}) const;

  /// The position of the code point's first entity in the list that the Search was built from; nullopt if the
  /// list has none.
  std::optional<std::size_t> indexOf(char32_t codePoint) const noexcept;

  /// The same for the character that has this name in the HTML Standard: "rarr". Letter case counts.
  std::optional<std::size_t> indexOfHtmlName(std::string_view name) const noexcept;

  /// The memory in bytes that the object and its copies share. Each thread that queries keeps about a third
  /// of that as working memory until it ends.
  std::size_t byteCount() const noexcept;

 private:
  struct Own;
  Search(std::shared_ptr<const search::Index> index, std::size_t byteCount);
  std::optional<std::size_t> indexOfDoc(std::uint32_t doc) const noexcept;

  std::shared_ptr<const search::Index> index_;
  std::size_t byteCount_ = 0;
};

}  // namespace glyph
