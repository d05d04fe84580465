// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/search/index.h"
#include "glyphorium/search/search.h"

namespace glyph::search {

/// How a word of the query matches a word of the dictionary; the earlier the better.
enum class WordMatch : std::uint8_t {
  whole,
  variant,  ///< a plural for a singular, a synonym
  prefix,
  group,  ///< the word stands in the name of the character's group
  note,
  typo,        ///< one letter differs
  typoPrefix,  ///< likewise, and letters are missing at the end
};

/// Words of the dictionary that a word of the query may stand for.
struct Alternative {
  TextRange words;
  WordMatch match;
};

struct QueryWord {
  std::string text;                       ///< folded
  std::vector<Alternative> alternatives;  ///< best first
  bool filler = false;                    ///< need not match
};

/// A character found, and by which of its phrases; noPhrase where by its group or by several ones.
struct Match {
  std::uint32_t cost;
  std::uint32_t doc;
  std::uint32_t phrase;
};
inline constexpr std::uint32_t noPhrase = 0xFFFFFFFF;

struct MatchFilter {
  std::uint32_t languages = ~0u;            ///< by bit
  const std::vector<char>* docs = nullptr;  ///< those that count, by doc; nullptr: all
};

/// Added for an HTML name, which is often an abbreviation that happens to be a word ("die", "image").
inline constexpr std::uint32_t htmlNameDetail = 8;

/// What costs less, the character's prior included, is called what the query says, and no more.
inline constexpr std::uint32_t wholeBase = 200;

// Costs that other interpretations of a query are put between: better than every match of words, behind those
// that match the query exactly, and last.
inline constexpr std::uint32_t firstCost = 0;
inline constexpr std::uint32_t behindExactCost = 195;
inline constexpr std::uint32_t fewerWordsBase = 4000;
inline constexpr std::uint32_t lastCost = 8000;

/// All characters that match all words (fillers excepted), in no order.
std::vector<Match> matchWords(const Index& index, const std::vector<QueryWord>& words,
                              const MatchFilter& filter);

/// Fills in the alternatives of a word: itself, its singular, its synonyms in the languages (by bit), and, if
/// asked for, words that begin with it.
void addDictionaryWords(const Index& index, QueryWord& word, std::uint32_t languages, bool prefixes);

/// How many places the word and its alternatives stand in: the more, the less it says.
std::size_t postingCount(const Index& index, const QueryWord& word);

/// Adds the words of the dictionary that differ from the word by one letter left out, put in, replaced or
/// exchanged with its neighbour. Nothing for words under four letters: everything is near them. No words with
/// digits: so it is with numbers.
void addMistypedWords(const Index& index, QueryWord& word);

/// Other spellings of the words, the likeliest first: without the words that only join others in the
/// languages (by bit), umlauts written "ae", joined words split, split words joined.
std::vector<std::vector<std::string>> respellings(const Index& index, const std::vector<std::string>& words,
                                                  std::uint32_t languages);

/// What the words of a query find, a character perhaps several times.
struct WordsFound {
  std::vector<Match> matches;
  std::vector<QueryWord> words;  ///< as they matched
  bool approximate = false;      ///< not as they stand
};

/// The characters that match all words; where there are none, and only if asked to do so persistently, other
/// readings of the words one after the other, the least surprising first.
WordsFound findWords(const Index& index, const std::vector<std::string>& words, const MatchFilter& filter,
                     bool persistently);

/// What of the name the words match.
std::vector<SearchRange> nameRanges(const Index& index, const std::vector<QueryWord>& words,
                                    std::string_view name);

}  // namespace glyph::search
