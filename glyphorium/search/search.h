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

/// What of an entity a query matched best.
enum class SearchField : std::uint8_t {
  character,   ///< the character itself stands in the query
  code,        ///< its code point does
  name,        ///< Entity::name(), or the table's name that a better name replaced
  alias,       ///< a formal alias or abbreviation of the Unicode Character Database
  htmlName,    ///< a name of the HTML Standard
  searchTerm,  ///< a search term or an everyday name
  annotation,  ///< a spoken name or keyword of CLDR
  group,
  note,  ///< a word of a usage note
};

/// Bytes of Entity::name(), from begin up to end.
struct SearchRange {
  std::size_t begin;
  std::size_t end;
  bool operator==(const SearchRange&) const = default;
};

struct SearchResult {
  std::size_t index;  ///< of the entity in the list that the Search was built from
  SearchField field;
  std::vector<SearchRange>
      nameRanges;  ///< what the query's words match of the name, ascending, for highlighting
  /// How far the result is from what was asked for, less is better: what several Searches find for one query
  /// can be put in one order by it. It means nothing else, and its scale may change.
  std::uint32_t cost = 0;
  /// The query as a whole is the character, its code, or all of one thing that it is called: a name, a term,
  /// an annotation. As always in a search, signs between words do not count. False where the results are
  /// approximate.
  bool exact = false;
};

struct SearchResults {
  std::vector<SearchResult> results;  ///< the best ones, best first
  std::size_t total = 0;              ///< how many entities match, the ones beyond the limit included
  bool approximate =
      false;  ///< nothing matches the query as it stands: its words were respelled to find these
};

struct SearchOptions {
  std::size_t limit = 100;
  /// Languages whose words are looked at first ("de", "pt-BR"); nullopt: preferredLanguages(). English always
  /// is. Words of the other languages that the catalog knows are found where these give nothing.
  std::optional<std::vector<std::string>> languages;
  /// Only entities of these groups, by their exact names; empty: of all.
  std::vector<std::string> groups;
};

/// The interactive search over a list of entities. Immutable: any number of threads may query one object, and
/// copies share their data. It keeps nothing of the list and does not notice its changes; build a new one for
/// a new list. Building costs somewhat more than decoding the tables did, so do it when it is first needed;
/// for the unchanged catalog the build did it, see ofCatalog().
///
/// A host that shows what the user's words match of the displayed characters:
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
  /// Several entities of one hex code (a curated group and its home block) are one result, of which the first
  /// one's index is reported; all their groups count.
  explicit Search(std::span<const Entity> entities);

  /// The search over buildInEntities() as configure() fills it, with the same results as if it were built
  /// from that list, made by the build: costs nothing to make, needs no configured catalog (buildInEntity()
  /// gives the entities of its results), and is shared by all processes.
  static Search ofCatalog();

  /// A query is one or more words in any order, which must all match if any character does; letter case,
  /// hyphens, underscores and the diacritics of Latin letters do not count, and the last letters of a word
  /// may still be missing. Or it is
  /// - a code point in any form that parseCodes() reads, also among words ("U+2192 RIGHTWARDS ARROW"), or a
  ///   bare number of either base, also several, bytes of UTF-8 and units of UTF-16 as dumps have them;
  /// - a reference or its bare name: "&rarr;", "&rarr", "rarr", "&#8594;", "&#x2192;";
  /// - characters: each is identified; of a sequence (combining marks, joiners, skin tones) its parts are,
  ///   behind the precomposed character where there is one;
  /// - signs typed for a character: "->", "(c)", "1/2".
  /// What is several of these at once gives all of them, the likeliest first. "group:arrows" before, between
  /// or behind words keeps to the groups of that name or, where none is called so, with these words in their
  /// names (group:"misc symbols" with blanks); alone it gives the whole groups in the order of the list.
  /// Where nothing matches, words are split, joined and corrected by one letter, then those are left out that
  /// join others or match nothing together with the others. Only the first 1,000 bytes
  /// and 32 words count. No results for an empty text, for ill-formed UTF-8 beside nothing else, and when
  /// memory runs out.
  SearchResults query(std::string_view text, const SearchOptions& options = {}) const;

  /// Where the code point's first entity stands in the list that the Search was built from; nullopt where the
  /// list has none.
  std::optional<std::size_t> indexOf(char32_t codePoint) const noexcept;

  /// Likewise of the character that the HTML Standard calls so: "rarr". Letter case counts.
  std::optional<std::size_t> indexOfHtmlName(std::string_view name) const noexcept;

  /// The memory that the object and its copies share. Every thread that queries keeps about a third of it
  /// more to work with, until it ends.
  std::size_t byteCount() const noexcept;

 private:
  struct Own;
  Search(std::shared_ptr<const search::Index> index, std::size_t byteCount);
  std::optional<std::size_t> indexOfDoc(std::uint32_t doc) const noexcept;

  std::shared_ptr<const search::Index> index_;
  std::size_t byteCount_ = 0;  // of what the index takes
};

}  // namespace glyph
