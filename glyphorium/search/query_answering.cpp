// SPDX-License-Identifier: MIT
#include "glyphorium/search/query_answering.h"

#include <algorithm>
#include <utility>

#include "glyphorium/search/hits.h"
#include "glyphorium/search/name_ranges.h"
#include "glyphorium/search/query_filter.h"
#include "glyphorium/search/score.h"
#include "glyphorium/search/word_search.h"
#include "glyphorium/text/preferred_languages.h"

namespace glyph::search {
namespace {

SearchField fieldOf(PhraseKind kind) {
  switch (kind) {
    case PhraseKind::name:
    case PhraseKind::replacedName:
      break;
    case PhraseKind::alias:
    case PhraseKind::informalName:
      return SearchField::alias;
    case PhraseKind::htmlName:
      return SearchField::htmlName;
    case PhraseKind::searchTerm:
    case PhraseKind::everydayName:
      return SearchField::searchTerm;
    case PhraseKind::textToSpeechName:
    case PhraseKind::keyword:
    case PhraseKind::meaning:
    case PhraseKind::reading:
      return SearchField::annotation;
    case PhraseKind::comment:
    case PhraseKind::note:
      return SearchField::note;
  }
  return SearchField::name;
}

class Answering {
 public:
  Answering(const Index& index, const ParsedQuery& query, const SearchOptions& options, bool persistently)
      : index_(index), options_(options), query_(query), persistently_(persistently) {
    filter_.languages = languageBits(index, options.languages ? *options.languages : preferredLanguages());
    if (query.groups.empty() && options.groups.empty()) return;
    allowed_ = docsInGroups(index, options.groups, query.groups);
    filter_.docs = &allowed_;
  }
  Answering(const Answering&) = delete;
  Answering& operator=(const Answering&) = delete;

  Answer answer() && {
    if (query_.words.empty() && query_.codes.empty() && query_.characters.empty() &&
        query_.besideWords.empty() && query_.otherCharacters.empty()) {
      addWholeGroups();
    } else {
      addReadings();
    }
    Hits::Best best = std::move(hits_).best(options_.limit, index_.docCount());
    SearchResults results;
    results.total = best.total;
    results.approximate = approximate_;
    results.lacksWords = lacksWords_;
    for (const Hits::Hit& hit : best.hits) {
      results.results.push_back({index_.docEntity[hit.doc], hit.field,
                                 nameRanges(index_, words_, index_.nameOfDoc(hit.doc)), hit.cost(),
                                 hit.exact && !approximate_});
    }
    return {std::move(results), settled_, isDirect_ || wholeFound_, !isDirect_ && byMeaning_};
  }

 private:
  // Adds all characters of the groups, in the order of the list of entities.
  void addWholeGroups() {
    if (query_.groups.empty()) return;
    for (std::uint32_t doc = 0; doc < index_.docCount(); ++doc) {
      if (allowed_[doc]) hits_.addAtPosition(doc, index_.docEntity[doc], SearchField::group);
    }
  }

  void addReadings() {
    // The meanings that are certain come first, in the order of the query.
    std::uint32_t place = 0;
    for (const std::uint32_t codePoint : query_.notations.certain)
      add(index_.docOfCodePoint(codePoint), place++, SearchField::notation, true);
    for (const ParsedCode& item : query_.codes) {
      if (item.htmlName.empty())
        add(index_.docOfCodePoint(item.codePoint), place++, SearchField::code, true);
      else
        add(index_.docOfHtmlName(item.htmlName), place++, SearchField::htmlName, true);
    }
    const bool isCode = !hits_.empty();
    for (const std::uint32_t codePoint : query_.notations.drawn)
      add(index_.docOfCodePoint(codePoint), place++, SearchField::notation, true);
    for (const std::uint32_t codePoint : query_.notations.begun) {
      const std::uint32_t doc = index_.docOfCodePoint(codePoint);
      if (doc == Index::noDoc) continue;
      add(doc, place + index_.docPrior[doc], SearchField::notation, false);
    }
    if (!query_.notations.begun.empty()) place += mostPrior;
    // A number without a prefix may be decimal or hexadecimal. If only one of the two characters is in the
    // catalog, people more likely mean that one. So a character of the supplement costs more.
    const std::uint32_t behindCatalog = index_.weighedWith ? likelyNumberOfOtherCost : 0;
    for (const std::uint32_t number : query_.likelyNumbers)
      add(index_.docOfCodePoint(number), behindCatalog + place++, SearchField::code, true);
    for (const std::uint32_t character : query_.characters)
      add(index_.docOfCodePoint(character), place++, SearchField::character, true);
    offset_ = place;
    addSignPhrases();
    for (const std::uint32_t codePoint : query_.notations.guessed)
      add(index_.docOfCodePoint(codePoint), offset_ + behindExactCost, SearchField::notation, false);
    for (const std::uint32_t number : query_.otherNumbers)
      add(index_.docOfCodePoint(number), offset_ + behindExactCost, SearchField::code, false);
    for (const std::uint32_t character : query_.besideWords)
      add(index_.docOfCodePoint(character), offset_ + behindExactCost, SearchField::character, false);
    const std::uint32_t bareName = index_.docOfHtmlName(query_.bareText);
    const bool direct = !hits_.empty() || bareName != Index::noDoc;
    // A query that contains a code is not corrected, even if the character with this code is not in the
    // index.
    const bool saysCode = std::any_of(query_.codes.begin(), query_.codes.end(),
                                      [](const ParsedCode& code) { return code.htmlName.empty(); });
    isDirect_ = direct || saysCode;
    addWords(!isDirect_ && persistently_);
    settled_ = isDirect_ || wordsFound_;
    if (bareName != Index::noDoc)
      add(bareName, offset_ + htmlNameCost + index_.docPrior[bareName], SearchField::htmlName, true);
    for (const std::uint32_t character : query_.otherCharacters) {
      // Skip the signs and letters of the query if they are part of a code, or of words that matched.
      if (!isCode && (hits_.empty() || query_.words.empty() || !wordsFound_))
        add(index_.docOfCodePoint(character), offset_ + lastCost + place++, SearchField::character, false);
    }
  }

  void add(std::uint32_t doc, std::uint32_t cost, SearchField field, bool exact) {
    if (doc == Index::noDoc || (filter_.docs && !allowed_[doc])) return;
    hits_.add(doc, cost, field, exact);
  }

  void addSignPhrases() {
    if (query_.signs.empty()) return;
    const TextRange range = index_.signs.withPrefix(query_.signs);
    for (std::uint32_t sign = range.first; sign < range.last; ++sign) {
      const Phrase found = index_.occurrence(index_.signPostings[sign]).phrase;
      if ((filter_.languages >> found.language & 1) == 0) continue;
      const bool whole = index_.signs[sign].size() == query_.signs.size();
      const std::uint32_t cost = offset_ + (whole ? 0 : behindExactCost) + index_.docPrior[found.doc];
      add(found.doc, cost, fieldOf(found.kind), whole);
    }
  }

  void addWords(bool persistently) {
    WordsFound found = findWords(index_, query_.words, filter_, persistently);
    hits_.reserveMore(found.matches.size());
    std::uint32_t least = 0xFFFFFFFF;
    for (const Match& match : found.matches) {
      if (match.cost < least) {
        least = match.cost;
        wholeFound_ = match.whole;
        byMeaning_ = match.kind == PhraseKind::meaning;
      }
      add(match.doc, offset_ + match.cost, fieldOf(match.kind), match.whole);
    }
    wordsFound_ = !found.matches.empty();
    approximate_ = found.approximate;
    lacksWords_ = found.lacksWords;
    words_ = std::move(found.words);
  }

  const Index& index_;
  const SearchOptions& options_;
  const ParsedQuery& query_;
  const bool persistently_;
  MatchFilter filter_;
  std::vector<char> allowed_;  // indexed by document number; empty if the query is not limited to groups
  Hits hits_;
  std::vector<QueryWord> words_;  // with the alternatives that matched
  std::uint32_t offset_ = 0;      // added to the costs of uncertain meanings, so that certain ones come first
  bool wordsFound_ = false;
  bool isDirect_ = false;
  // The following become members of Answer and of SearchResults.
  bool settled_ = false;
  bool wholeFound_ = false;
  bool byMeaning_ = false;
  bool approximate_ = false;
  bool lacksWords_ = false;
};

}  // namespace

Answer answer(const Index& index, const ParsedQuery& query, const SearchOptions& options, bool persistently) {
  return Answering(index, query, options, persistently).answer();
}

}  // namespace glyph::search
