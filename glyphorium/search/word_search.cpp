// SPDX-License-Identifier: MIT
#include "glyphorium/search/word_search.h"

#include <algorithm>
#include <iterator>

#include "glyphorium/search/dictionary_words.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/mistyped_words.h"
#include "glyphorium/search/respelling.h"
#include "glyphorium/search/score.h"

namespace glyph::search {
namespace {

constexpr std::size_t mostRespellings = 6;
constexpr std::size_t shortestInnerPrefix = 3;
constexpr std::size_t mostRespelledWords = 5;  // longer queries are not respelled

class WordSearch {
 public:
  WordSearch(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter)
      : index_(index), words_(words), filter_(filter), languages_(languagesOf(index, filter.languages)) {}

  WordsFound find(bool persistently) && {
    Reading typed = read(dictionaryWords(words_, languages_, true), filter_, 0);
    const bool complete = typed.isComplete();
    if (complete) keep(typed);
    if (complete && !isName(typed.matches)) addNamesInOtherLanguages();
    // If words are split or joined, the query may be a whole text of a character: "thumbsup". But a single
    // letter at the end is the beginning of a word: "not e" does not mean "note".
    if (complete && !typed.matches.best.whole && words_.back().size() > 1) addWholeRespellings();
    if (complete || !persistently) return std::move(found_);
    Reading best = readWidely(std::move(typed));
    const bool found = !best.matches.all.empty() && best.matches.best.whole && best.matches.best.asTyped;
    for (const std::vector<std::string>& spelling :
         found ? std::vector<std::vector<std::string>>() : respelled()) {
      Reading other = read(dictionaryWords(spelling, languages_, true), filter_, otherReadingCost);
      if (other.matches.unmatched == 0 && other.cost() < best.cost()) best = std::move(other);
    }
    if (best.matches.all.empty()) return std::move(found_);
    found_.lacksWords = best.matches.unmatched != 0;
    found_.approximate = found_.lacksWords || !best.matches.best.asTyped;
    keep(best);
    return std::move(found_);
  }

 private:
  std::vector<QueryWord> dictionaryWords(const std::vector<std::string>& words, const Languages& languages,
                                         bool prefixes) const {
    std::vector<QueryWord> result;
    const std::size_t mostTooShort = index_.weighedWith ? 2 : 1;
    bool afterJoining = false;  // the previous word is a stop word: in "with a", "a" is no letter
    for (const std::string& text : words) {
      const bool isLast = &text == &words.back();
      const bool isOnly = words.size() == 1;
      const bool isStopWord = !isOnly && saysLittle(languages, text) && (text.size() > 1 || afterJoining);
      QueryWord& word = result.emplace_back(QueryWord{text, {}, isStopWord, 0});
      afterJoining = isStopWord;
      // If the query is a single word, it may be incomplete only if it is long enough. A single letter is a
      // prefix of a tenth of all words. In the supplement, two letters are too short as well: the catalog has
      // enough words that begin with them. A word before the last one may be incomplete only if it is not in
      // the dictionary.
      const bool mayBeBegun = isLast
                                  ? !isOnly || text.size() > mostTooShort
                                  : text.size() >= shortestInnerPrefix && index_.words.exactly(text).empty();
      addDictionaryWords(index_, word, languages, prefixes && mayBeBegun && !isStopWord);
    }
    return result;
  }

  static bool saysLittle(const Languages& languages, std::string_view word) {
    return isStopWord(word) || isFunctionWord(languages, word);
  }

  // One interpretation of the query, and the characters that it finds.
  struct Reading {
    std::vector<QueryWord> words;
    Matches matches;
    std::uint32_t extraCost;

    bool isComplete() const { return !matches.all.empty() && matches.unmatched == 0; }
    std::uint32_t cost() const { return matches.all.empty() ? 0xFFFFFFFF : matches.best.cost + extraCost; }
  };

  Reading read(std::vector<QueryWord> words, const MatchFilter& filter, std::uint32_t extraCost) const {
    Matches matches = matchWords(index_, words, filter);
    return {std::move(words), std::move(matches), extraCost};
  }

  std::vector<std::vector<std::string>> respelled() const {
    // Only the catalog's index is used to split and join words. The supplement's index has so many short
    // words that nearly every word could be split into them.
    if (words_.size() > mostRespelledWords || index_.weighedWith) return {};
    std::vector<std::vector<std::string>> spellings = respellings(index_, words_, languages_);
    spellings.resize(std::min(spellings.size(), mostRespellings));
    return spellings;
  }

  // Returns true if the query is a whole text of the best match, other than an HTML name.
  static bool isName(const Matches& matches) {
    return matches.best.whole && matches.best.kind != PhraseKind::htmlName;
  }

  // Adds the characters that have the query as a whole text in another language. Without them, "luna" would
  // find only English words that begin with it, such as "lunate", and not the moon.
  void addNamesInOtherLanguages() {
    MatchFilter others = filter_;
    others.languages = ~filter_.languages;
    Reading other =
        read(dictionaryWords(words_, languagesOf(index_, others.languages), false), others, otherReadingCost);
    std::erase_if(other.matches.all, [](const Match& match) { return !match.whole; });
    if (!other.matches.all.empty()) keep(other);
  }

  void addWholeRespellings() {
    for (const std::vector<std::string>& spelling : respelled()) {
      // If the query has more than two words, splitting them hardly ever gives a whole text of a character.
      if (words_.size() > 2 && spelling.size() >= words_.size()) continue;
      Reading other = read(dictionaryWords(spelling, languages_, false), filter_, otherReadingCost);
      std::erase_if(other.matches.all, [](const Match& match) { return !match.whole; });
      if (!other.matches.all.empty()) keep(other);
    }
  }

  // Looks up the unmatched words in all languages, and corrects them.
  Reading readWidely(Reading typed) const {
    MatchFilter anyLanguage = filter_;
    anyLanguage.languages = ~0u;
    const Languages all = languagesOf(index_, anyLanguage.languages);
    for (std::size_t i = 0; i < typed.words.size(); ++i) {
      QueryWord& word = typed.words[i];
      const bool matched = !typed.matches.all.empty() && (typed.matches.unmatched >> i & 1) == 0;
      if (word.isStopWord || matched) continue;
      word.alternatives.clear();
      addDictionaryWords(index_, word, all, false);
      if (index_.words.exactly(word.text).empty()) addMistypedWords(index_, word);
    }
    return read(std::move(typed.words), anyLanguage, 0);
  }

  void keep(Reading& reading) {
    for (Match match : reading.matches.all) {
      match.cost += reading.extraCost;
      found_.matches.push_back(match);
    }
    found_.words.insert(found_.words.end(), std::make_move_iterator(reading.words.begin()),
                        std::make_move_iterator(reading.words.end()));
  }

  const Index& index_;
  const std::vector<std::string>& words_;
  const MatchFilter& filter_;
  const Languages languages_;  // the languages of filter_
  WordsFound found_;
};

}  // namespace

WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently) {
  if (words.empty()) return {};
  return WordSearch(index, words, filter).find(persistently);
}

}  // namespace glyph::search
