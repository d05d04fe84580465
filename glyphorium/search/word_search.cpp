// SPDX-License-Identifier: MIT
#include "glyphorium/search/word_search.h"

#include <algorithm>
#include <bit>
#include <iterator>

#include "glyphorium/search/dictionary_words.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/match_costs.h"
#include "glyphorium/search/mistyped_words.h"
#include "glyphorium/search/respelling.h"

namespace glyph::search {
namespace {

constexpr std::size_t mostRespellings = 16;
constexpr std::size_t mostKnownWords = 6;  // each additional word doubles the number of combinations
constexpr std::uint32_t headWeight = 200;
constexpr std::uint32_t nothing = 0xFFFFFFFF;  // used in place of a cost if there is no match

// Which matches count: all, only those within one text, or only those of a whole text. The parts of a split
// word must be in one text, because they would match in several texts only by chance.
enum class Demand { any, together, exact };

class WordSearch {
 public:
  WordSearch(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter)
      : index_(index),
        words_(words),
        filter_(filter),
        languages_(search::languagesOf(index, filter.languages)),
        anyLanguage_(filter) {
    anyLanguage_.languages = ~0u;
  }

  WordsFound find(bool persistently) && {
    const std::uint32_t best = match(dictionaryWords(words_, filter_, true), filter_);
    // The words match, but do not match a whole text. A respelling may match a whole text, which is a better
    // result. An example is "thumbsup".
    if (best != nothing && best >= wholeBase) {
      readRespellings();
      // For more than two words, try only the respellings that have fewer words. They leave out function
      // words or join two words.
      if (words_.size() > 2)
        std::erase_if(respelled_, [&](const auto& words) { return words.size() >= words_.size(); });
      matchRespelled(false, Demand::exact);
    }
    if (best == nothing && persistently) findOtherwise();
    return std::move(found_);
  }

 private:
  // Tries other readings of the words, the most likely reading first, until one of them matches.
  void findOtherwise() {
    if (match(dictionaryWords(words_, anyLanguage_, false), anyLanguage_) != nothing) return;
    found_.approximate = true;
    readRespellings();
    if (matchRespelled(false, Demand::together)) return;
    if (match(mistypedWords(words_, filter_, false), filter_) != nothing) return;
    if (words_.size() > 1 && match(mistypedWords(words_, filter_, true), filter_) != nothing) return;
    if (matchRespelled(true, Demand::together)) return;
    if (match(dictionaryWords(words_, anyLanguage_, true), anyLanguage_) != nothing) return;
    if (match(mistypedWords(words_, anyLanguage_, false), anyLanguage_) != nothing) return;
    if (matchRespelled(false, Demand::any)) return;
    if (matchFewer(filter_) || matchFewer(anyLanguage_)) return;
    found_.approximate = false;
  }

  const Languages& languagesOf(const MatchFilter& filter) {
    if (&filter != &anyLanguage_) return languages_;
    if (allLanguages_.empty()) allLanguages_ = search::languagesOf(index_, anyLanguage_.languages);
    return allLanguages_;
  }

  void readRespellings() {
    respelled_ = respellings(index_, words_, languages_);
    respelled_.resize(std::min(respelled_.size(), mostRespellings));
  }

  bool matchRespelled(bool prefixes, Demand demand) {
    return std::any_of(respelled_.begin(), respelled_.end(), [&](const std::vector<std::string>& words) {
      return match(dictionaryWords(words, filter_, prefixes), filter_, demand) != nothing;
    });
  }

  // Adds the characters that match most of the words, at least about half of them. Returns whether there are
  // such characters. The cost of leaving out a word is lower if the word is in many texts than if it is in
  // few texts. Leaving out an unknown word costs nothing.
  bool matchFewer(const MatchFilter& filter) {
    const Languages& languages = languagesOf(filter);
    std::vector<QueryWord> known;
    std::size_t needed = 0;
    for (QueryWord& word : mistypedWords(words_, filter, false)) {
      if (isFunctionWord(languages, word.text)) continue;
      needed += word.isStopWord ? 0 : 1;
      if (!word.alternatives.empty() && known.size() < mostKnownWords) known.push_back(std::move(word));
    }
    // The head is the noun that the other words describe. It is the last word in Germanic languages and the
    // first word in Romance languages.
    const bool headFirst = std::any_of(languages_.begin(), languages_.end(),
                                       [](const SearchLanguage* language) { return language->headFirst; });
    const std::size_t head = headFirst ? 0 : known.size() - 1;
    for (std::size_t left = known.size(); left > 0 && left * 2 + 1 >= needed; --left) {
      bool any = false;
      for (std::uint32_t chosen = 1; chosen < 1u << known.size(); ++chosen) {
        if (std::popcount(chosen) != static_cast<int>(left)) continue;
        std::vector<QueryWord> some;
        std::uint32_t missed = 0;
        for (std::size_t i = 0; i < known.size(); ++i) {
          if (chosen >> i & 1)
            some.push_back(known[i]);
          else
            missed += weight(known[i]) + (i == head ? headWeight : 0);
        }
        if (std::all_of(some.begin(), some.end(), [](const QueryWord& word) { return word.isStopWord; }))
          continue;
        any = match(std::move(some), filter, Demand::any, fewerWordsBase + missed) != nothing || any;
      }
      if (any) return true;
    }
    return false;
  }

  // Returns the cost of leaving out a word. A rare word says more than a frequent word, so its cost is
  // higher. The highest cost is about the difference between two tiers of the ranking.
  std::uint32_t weight(const QueryWord& word) const {
    constexpr int mostBits = 17;
    const int rarity =
        std::max(mostBits - static_cast<int>(std::bit_width(postingCount(index_, word) + 1)), 0);
    return word.isStopWord ? 0 : 12 * static_cast<std::uint32_t>(rarity);
  }

  std::vector<QueryWord> dictionaryWords(const std::vector<std::string>& words, const MatchFilter& filter,
                                         bool prefixes) {
    std::vector<QueryWord> result;
    for (const std::string& text : words) {
      QueryWord& word = result.emplace_back(QueryWord{text, {}, isStopWord(text)});
      // As a prefix, a single letter would match a tenth of all words. After other words, a single letter is
      // the beginning of the next word.
      addDictionaryWords(index_, word, languagesOf(filter),
                         prefixes && (text.size() > 1 || result.size() > 1));
    }
    return result;
  }

  std::vector<QueryWord> mistypedWords(const std::vector<std::string>& words, const MatchFilter& filter,
                                       bool all) {
    std::vector<QueryWord> result = dictionaryWords(words, filter, true);
    for (QueryWord& word : result) {
      if (all || word.alternatives.empty()) addMistypedWords(index_, word);
    }
    return result;
  }

  // Adds the matches that meet the demand, and adds `extra` to their costs. Returns the cost of the best
  // match, or `nothing` if there is no match.
  std::uint32_t match(std::vector<QueryWord> words, const MatchFilter& filter, Demand demand = Demand::any,
                      std::uint32_t extra = 0) {
    std::uint32_t best = nothing;
    for (Match match : matchWords(index_, words, filter)) {
      if ((demand != Demand::any && match.phrase == noPhrase) ||
          (demand == Demand::exact && match.cost >= wholeBase))
        continue;
      match.cost += extra;
      best = std::min(best, match.cost);
      found_.matches.push_back(match);
    }
    if (best != nothing) {
      found_.words.insert(found_.words.end(), std::make_move_iterator(words.begin()),
                          std::make_move_iterator(words.end()));
    }
    return best;
  }

  const Index& index_;
  const std::vector<std::string>& words_;
  const MatchFilter& filter_;
  const Languages languages_;  // the languages of filter_
  MatchFilter anyLanguage_;
  Languages allLanguages_;  // empty until first used
  std::vector<std::vector<std::string>> respelled_;
  WordsFound found_;
};

}  // namespace

WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently) {
  if (words.empty()) return {};
  return WordSearch(index, words, filter).find(persistently);
}

}  // namespace glyph::search
