// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"
#include "glyphorium/search/static_rank.h"

namespace glyph::search {

// The score of a match is a cost: the smaller, the better. It is the sum of
// - the loss of each word of the query. A word has a weight. It loses a part of it, depending on how it
//   matches, or all of it if it does not match;
// - how well the best matching text of the character and the query cover each other;
// - the prior of the character, from 0 to 80, which decides between equally good matches: see static_rank.h.
// See docs/search.md for a description with examples.

// The weight of a word grows by ten points each time that the number of texts with this word is halved. A
// rare word says more about the wanted character than a frequent word.
inline constexpr std::uint32_t pointsPerHalving = 10;
inline constexpr int mostHalvings = 12;
// The weight of words that only join other words ("with") or say that the query is about a character
// ("sign").
inline constexpr std::uint32_t stopWordWeight = 8;
// The weight of a word that is in no text. It is less than the weight of a rare word, because the word may be
// a mistake.
inline constexpr std::uint32_t unknownWordWeight = 70;

// The least weight of a single letter. Many texts contain the word "a", but in "a with dot" it is important.
inline constexpr std::uint32_t leastLetterWeight = 80;

/// Returns the weight of a word that is in this number of texts.
inline std::uint32_t wordWeight(std::string_view word, std::size_t texts) {
  if (texts == 0) return unknownWordWeight;
  constexpr int halvingsToNothing = 16;
  const int halvings = halvingsToNothing - static_cast<int>(std::bit_width(texts));
  const std::uint32_t weight =
      pointsPerHalving * static_cast<std::uint32_t>(std::clamp(halvings, 1, mostHalvings));
  return word.size() == 1 ? std::max(weight, leastLetterWeight) : weight;
}

/// Returns how many percent of its weight a word loses by this kind of match.
inline std::uint32_t lossPercent(WordMatch match) {
  switch (match) {
    case WordMatch::whole:
      return 0;
    case WordMatch::variant:
      return 5;
    case WordMatch::prefix:
      return 35;
    case WordMatch::typo:
      return 50;
    case WordMatch::group:
      return 60;
    case WordMatch::typoPrefix:
      return 65;
  }
  return 100;
}

/// Returns how many percent of its weight a word loses at least if it matches a text of this kind.
inline std::uint32_t lossPercent(PhraseKind kind) {
  // A note may mention what the character is not. A comment may mention where it is used.
  return kind == PhraseKind::note ? 75 : kind == PhraseKind::comment ? 20 : 0;
}

// The cost that a word adds if it matches only as a variant, if it is only the beginning of a word, and if it
// does not match.
inline constexpr std::uint32_t variantWordCost = 12;
inline constexpr std::uint32_t prefixWordCost = 18;
inline constexpr std::uint32_t missingWordCost = 90;

// Both in percent of the weight of all words without stop words. If the words that the best character lacks
// weigh more than mostMissing, nothing is found. Another character is left out if the weight of the words
// that it lacks exceeds that of the best character by more than mostMissingBeyondBest.
inline constexpr std::uint32_t mostMissing = 62;
inline constexpr std::uint32_t mostMissingBeyondBest = 20;
// The same for the loss of its words. It leaves out characters that match only by a note if others match
// better.
inline constexpr std::uint32_t mostLossBeyondBest = 55;

// The costs that the best matching text adds. It adds none if the query covers it.
inline constexpr std::uint32_t otherOrderInPartCost = 10;
inline constexpr std::uint32_t otherOrderCost = 30;   // the words have another order in the text
inline constexpr std::uint32_t looselyWholeCost = 8;  // only stop words are left in the text
inline constexpr std::uint32_t headCost = 40;         // a part of the text with its noun matches: "heart"
inline constexpr std::uint32_t partCost = 70;         // a part of the text without its noun matches
inline constexpr std::uint32_t extraWordCost = 4;     // for each word of the text that is not in the query
inline constexpr std::uint32_t mostExtraWords = 8;    // further extra words cost nothing
inline constexpr std::uint32_t spreadCost = 140;      // the words are in several texts of the character
inline constexpr std::uint32_t unnamedCost = 6;       // the words are not in the name
inline constexpr std::uint32_t htmlNameCost = 25;  // many HTML names are abbreviations that are words: "die"
inline constexpr std::uint32_t htmlNameInNameCost = 4;  // used instead, if the word is also in the name
// Few systems can show private-use characters. They come last, unless the query is the whole name.
inline constexpr std::uint32_t privateUseCost = 400;
inline constexpr std::uint32_t privateUseNameCost = 50;  // one-word names are also everyday words

// With this cost, Han characters come after most other matches.
inline constexpr std::uint32_t hanMeaningCost = 300;

// The cost of results that are not found by words, for example by a code or an HTML name.
inline constexpr std::uint32_t behindExactCost = 75;   // after the results with a text equal to the query
inline constexpr std::uint32_t otherReadingCost = 45;  // added if words of the query were split or joined
inline constexpr std::uint32_t likelyNumberOfOtherCost = 10;  // a number as a code beyond the catalog
inline constexpr std::uint32_t lastCost = 8000;               // after all other results

/// Returns the cost of a kind of text. The name says a little more about a character than its other texts. A
/// keyword says less, because it names a property that many characters share.
inline std::uint32_t kindCost(PhraseKind kind) {
  switch (kind) {
    case PhraseKind::name:
    case PhraseKind::replacedName:
      return 0;
    case PhraseKind::informalName:
      return 6;
    case PhraseKind::comment:
      return 12;
    case PhraseKind::keyword:
      return 40;
    case PhraseKind::meaning:
      return hanMeaningCost;
    case PhraseKind::reading:
      return hanMeaningCost + 20;
    case PhraseKind::htmlName:
      return htmlNameCost;
    default:
      return 3;
  }
}

/// How a text matches the words of a query.
struct TextMatch {
  unsigned words = 0;      ///< the number of matched words of the query, without stop words
  unsigned stopWords = 0;  ///< the number of matched stop words
  unsigned aligned = 0;    ///< the number of matched words with the same distance between query and text
  unsigned variants = 0;   ///< the number of words that match only as variants
  unsigned prefixes = 0;   ///< the number of words that are only the beginning of a word
  bool head = false;       ///< whether the noun of the text matches
};

/// Returns true if the query contains all words of the text, except for stop words. A query that repeats a
/// word ("dot dot dot") does not cover a text that contains the word once.
inline bool coversText(const Phrase& phrase, const TextMatch& match) {
  if (match.words + match.stopWords > phrase.words) return false;
  return match.words + match.stopWords >= phrase.words || match.words >= phrase.coreWords;
}

/// Returns the cost that the text adds to the loss of the words.
inline std::uint32_t textCost(const Phrase& phrase, const TextMatch& match) {
  const unsigned matched = match.words + match.stopWords;
  const std::uint32_t left = phrase.words > matched ? phrase.words - matched : 0;
  std::uint32_t cost = kindCost(phrase.kind) + extraWordCost * std::min(left, mostExtraWords);
  if (match.aligned < matched) cost += left > 0 ? otherOrderInPartCost : otherOrderCost;
  cost += variantWordCost * match.variants + prefixWordCost * match.prefixes;
  if (coversText(phrase, match)) return cost + (left > 0 ? looselyWholeCost : 0);
  return cost + (match.head ? headCost : partCost);
}

// A query of a few letters is probably the beginning of a longer word. With this cost, the common signs with
// such words come before the syllables of rare scripts whose names are these letters.
inline constexpr std::size_t shortQuery = 3;  // in bytes
inline constexpr std::uint32_t shortNameOfLetterCost = 40;

/// Returns the cost that the character adds to a match. If the query is the whole name of the character,
/// `wholeName` is the number of words of the name, otherwise 0.
inline std::uint32_t priorCost(std::uint8_t prior, bool isShortQuery, unsigned wholeName) {
  const std::uint32_t cost = prior + (isShortQuery && prior >= letterPrior ? shortNameOfLetterCost : 0);
  const bool isPrivateUse = prior >= privateUsePrior && prior < behindPrivateUsePrior;
  if (!isPrivateUse || wholeName > 1) return cost;
  return cost + (wholeName == 1 ? privateUseNameCost : privateUseCost);
}

}  // namespace glyph::search
