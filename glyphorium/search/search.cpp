// SPDX-License-Identifier: MIT
#include "glyphorium/search/search.h"

#include <algorithm>
#include <new>
#include <utility>

#include "glyphorium/search/index.h"
#include "glyphorium/search/matching.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/words.h"
#include "glyphorium/text/preferred_languages.h"

namespace glyph {
namespace search {
namespace {

SearchField fieldOf(PhraseKind kind) {
  switch (kind) {
    case PhraseKind::name:
    case PhraseKind::replacedName:
      break;
    case PhraseKind::alias:
      return SearchField::alias;
    case PhraseKind::htmlName:
      return SearchField::htmlName;
    case PhraseKind::searchTerm:
    case PhraseKind::everydayName:
      return SearchField::searchTerm;
    case PhraseKind::spokenName:
    case PhraseKind::keyword:
      return SearchField::annotation;
    case PhraseKind::note:
      return SearchField::note;
  }
  return SearchField::name;
}

// One query: collects what its interpretations find, each character once, and ranks it.
class Run {
 public:
  Run(const Index& index, const SearchOptions& options, ParsedQuery query)
      : index_(index), options_(options), query_(std::move(query)) {}

  SearchResults results() {
    chooseLanguages();
    chooseGroups();
    if (query_.words.empty() && query_.codes.empty() && query_.characters.empty() &&
        query_.besideWords.empty() && query_.otherCharacters.empty()) {
      if (query_.groups.empty()) return {};
      wholeGroups();
    } else {
      interpret();
    }
    return ranked();
  }

 private:
  struct Hit {
    std::uint64_t order;  // cost << 32 | doc
    std::uint32_t doc;
    SearchField field;
  };

  void chooseLanguages() {
    filter_.languages = 1u | 1u << 1;  // what is of no language, and English
    for (const std::string& wanted : options_.languages ? *options_.languages : preferredLanguages()) {
      for (std::uint32_t i = 1; i < index_.languages.size(); ++i) {
        const std::string_view language = index_.languages[i];
        const bool regional = wanted.starts_with(language) && wanted.substr(language.size(), 1) == "-";
        if (wanted == language || regional) filter_.languages |= 1u << i;
      }
    }
  }

  void chooseGroups() {
    if (query_.groups.empty() && options_.groups.empty()) return;
    allowed_.assign(index_.docCount(), 1);
    if (!options_.groups.empty()) {
      keepOnly([&](const Group& group) {
        return std::find(options_.groups.begin(), options_.groups.end(), group.name) != options_.groups.end();
      });
    }
    for (const std::string& typed : query_.groups) {
      const std::string name = wordsOf(typed);
      bool isName = false;
      for (std::uint32_t i = 0; i < index_.groupCount(); ++i) isName = isName || index_.groupWords[i] == name;
      keepOnly([&](const Group& group) {
        if (isName) return group.words == name;
        bool all = !name.empty();
        for (WordReader reader(name); reader.next();) all = all && group.hasWordWithPrefix(reader.word());
        return all;
      });
    }
    filter_.docs = &allowed_;
  }

  template <typename Predicate>
  void keepOnly(Predicate isWanted) {
    std::vector<char> members(index_.docCount(), 0);
    for (std::uint32_t i = 0; i < index_.groupCount(); ++i) {
      const Group group = index_.group(i);
      if (!isWanted(group)) continue;
      for (const std::uint32_t doc : group.docs) members[doc] = 1;
    }
    for (std::size_t doc = 0; doc < members.size(); ++doc) allowed_[doc] = allowed_[doc] && members[doc];
  }

  // In the order of the list.
  void wholeGroups() {
    for (std::uint32_t doc = 0; doc < index_.docCount(); ++doc) {
      if (allowed_[doc]) hits_.push_back({index_.docEntity[doc], doc, SearchField::group});
    }
  }

  void interpret() {
    // What cannot be anything else comes first, in the order of the query.
    std::uint32_t place = firstCost;
    for (const ParsedCode& item : query_.codes) {
      if (item.htmlName.empty())
        addDirect(index_.docOfCodePoint(item.codePoint), place++, SearchField::code);
      else
        addDirect(index_.docOfHtmlName(item.htmlName), place++, SearchField::htmlName);
    }
    const bool isCode = !hits_.empty();
    for (const std::uint32_t number : query_.likelyNumbers)
      addDirect(index_.docOfCodePoint(number), place++, SearchField::code);
    for (const std::uint32_t character : query_.characters)
      addDirect(index_.docOfCodePoint(character), place++, SearchField::character);
    offset_ = place;
    addSignPhrases();
    for (const std::uint32_t number : query_.otherNumbers)
      addDirect(index_.docOfCodePoint(number), offset_ + behindExactCost, SearchField::code);
    for (const std::uint32_t character : query_.besideWords)
      addDirect(index_.docOfCodePoint(character), offset_ + behindExactCost, SearchField::character);
    const std::uint32_t bareName = index_.docOfHtmlName(query_.bareText);
    const bool direct = !hits_.empty() || bareName != Index::noDoc;
    // What is a code is no mistyped word, also where the list does not hold its character.
    const bool saysCode = std::any_of(query_.codes.begin(), query_.codes.end(),
                                      [](const ParsedCode& code) { return code.htmlName.empty(); });
    addWords(!direct && !saysCode);
    if (bareName != Index::noDoc)
      addDirect(bareName, offset_ + htmlNameDetail + index_.docPrior[bareName], SearchField::htmlName);
    for (const std::uint32_t character : query_.otherCharacters) {
      // The signs of a code and the letters of words that were found need no identifying.
      if (!isCode && (hits_.empty() || query_.words.empty() || !wordsFound_))
        addDirect(index_.docOfCodePoint(character), offset_ + lastCost + place++, SearchField::character);
    }
  }

  void addDirect(std::uint32_t doc, std::uint32_t cost, SearchField field) {
    if (doc == Index::noDoc || (filter_.docs && !allowed_[doc])) return;
    hits_.push_back({std::uint64_t{cost} << 32 | doc, doc, field});
  }

  void addSignPhrases() {
    if (query_.signs.empty()) return;
    const TextRange range = index_.signs.withPrefix(query_.signs);
    for (std::uint32_t sign = range.first; sign < range.last; ++sign) {
      const Phrase& found = index_.phrases[index_.signPhrases[sign]];
      if ((filter_.languages >> found.language & 1) == 0) continue;
      const bool whole = index_.signs[sign].size() == query_.signs.size();
      const std::uint32_t cost = offset_ + (whole ? 0 : behindExactCost) + index_.docPrior[found.doc];
      addDirect(found.doc, cost, fieldOf(found.kind));
    }
  }

  void addWords(bool persistently) {
    WordsFound found = findWords(index_, query_.words, filter_, persistently);
    hits_.reserve(hits_.size() + found.matches.size());
    for (const Match& match : found.matches) {
      const bool byName = match.phrase == noPhrase;
      addDirect(match.doc, offset_ + match.cost,
                byName ? SearchField::name : fieldOf(index_.phrases[match.phrase].kind));
    }
    wordsFound_ = !found.matches.empty();
    approximate_ = found.approximate;
    words_ = std::move(found.words);
  }

  SearchResults ranked() {
    SearchResults results;
    results.approximate = approximate_;
    // Each doc counts once, by its best hit.
    std::vector<char> seen(index_.docCount(), 0);
    for (const Hit& hit : hits_) results.total += std::exchange(seen[hit.doc], 1) == 0;
    // Only what will be shown is sorted, with a reserve for the docs that were hit twice.
    const auto isBefore = [](const Hit& a, const Hit& b) { return a.order < b.order; };
    if (options_.limit < results.total) {
      const std::size_t twice = hits_.size() - results.total;
      const auto end = hits_.begin() + static_cast<std::ptrdiff_t>(options_.limit + twice);
      std::nth_element(hits_.begin(), end, hits_.end(), isBefore);
      hits_.erase(end, hits_.end());
    }
    std::sort(hits_.begin(), hits_.end(), isBefore);
    for (const Hit& hit : hits_) {
      if (results.results.size() == options_.limit) break;
      if (std::exchange(seen[hit.doc], 0) == 0) continue;
      const auto cost = static_cast<std::uint32_t>(hit.order >> 32);
      const bool exact = !approximate_ && hit.field != SearchField::group && cost < offset_ + behindExactCost;
      results.results.push_back({index_.docEntity[hit.doc], hit.field,
                                 nameRanges(index_, words_, index_.names[hit.doc]), cost, exact});
    }
    return results;
  }

  const Index& index_;
  const SearchOptions& options_;
  ParsedQuery query_;
  MatchFilter filter_;
  std::vector<char> allowed_;
  std::vector<Hit> hits_;
  std::vector<QueryWord> words_;  // as they matched
  std::uint32_t offset_ = 0;
  bool wordsFound_ = false;
  bool approximate_ = false;
};

}  // namespace
}  // namespace search

// An index and its views of it.
struct Search::Own {
  explicit Own(search::IndexImage built) : image(std::move(built)), index(search::openIndex(image)) {}
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;

  const search::IndexImage image;
  const search::Index index;
};

Search::Search(std::span<const Entity> entities) {
  try {
    auto own = std::make_shared<Own>(search::buildIndex(entities));
    index_ = {own, &own->index};
    byteCount_ = sizeof *own + own->image.size();
  } catch (const std::bad_alloc&) {
    // Finds nothing.
  }
}

Search::Search(std::shared_ptr<const search::Index> index, std::size_t byteCount)
    : index_(std::move(index)), byteCount_(byteCount) {}

Search Search::ofCatalog() {
  static const search::Index index = search::openIndex(search::catalogIndexImage());
  return {{std::shared_ptr<void>(), &index}, 0};
}

SearchResults Search::query(std::string_view text, const SearchOptions& options) const {
  if (!index_) return {};
  try {
    auto parsed = search::parseQuery(text);
    if (!parsed) return {};
    return search::Run(*index_, options, std::move(*parsed)).results();
  } catch (const std::bad_alloc&) {
    return {};
  }
}

std::optional<std::size_t> Search::indexOfDoc(std::uint32_t doc) const noexcept {
  if (doc == search::Index::noDoc) return std::nullopt;
  return index_->docEntity[doc];
}

std::optional<std::size_t> Search::indexOf(char32_t codePoint) const noexcept {
  return index_ ? indexOfDoc(index_->docOfCodePoint(codePoint)) : std::nullopt;
}

std::optional<std::size_t> Search::indexOfHtmlName(std::string_view name) const noexcept {
  return index_ ? indexOfDoc(index_->docOfHtmlName(name)) : std::nullopt;
}

std::size_t Search::byteCount() const noexcept {
  return byteCount_;
}

}  // namespace glyph
