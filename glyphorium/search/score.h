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
// - the losses of the words of the query. Each word has a weight. The loss is a part of this weight if the
//   word does not match exactly, and the whole weight if the word does not match;
// - the cost of the best matching text of the character: the less the text and the query cover each other,
//   the higher it is;
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

/// Returns the percentage of its weight that a word loses by this kind of match.
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

/// Returns the least percentage of its weight that a word loses if it matches a text of this kind.
inline std::uint32_t lossPercent(PhraseKind kind) {
  // A note may mention what the character is not. A comment may mention where the character is used.
  return kind == PhraseKind::note ? 75 : kind == PhraseKind::comment ? 20 : 0;
}

// The cost that a word adds to its loss: if it matches only as a variant, if it is only the beginning of a
// word, and if it does not match.
inline constexpr std::uint32_t variantWordCost = 12;
inline constexpr std::uint32_t prefixWordCost = 18;
inline constexpr std::uint32_t missingWordCost = 90;

// The following three limits are percentages of the weight of the query: the weight of all its words except
// stop words. If the words that the best character lacks weigh more than mostMissing, nothing is found.
// Another character is left out if the words that it lacks weigh more than those that the best character
// lacks, and the difference is larger than mostMissingBeyondBest.
inline constexpr std::uint32_t mostMissing = 62;
inline constexpr std::uint32_t mostMissingBeyondBest = 20;
// A character is also left out if its words lose more than those of the best character, and the difference is
// larger than mostLossBeyondBest. This leaves out characters that match only by a note if others match
// better.
inline constexpr std::uint32_t mostLossBeyondBest = 55;

// The costs that the best matching text adds. A text that consists of exactly the words of the query, in the
// same order, adds none of the costs from otherOrderInPartCost to spreadCost.
inline constexpr std::uint32_t otherOrderInPartCost = 10;
inline constexpr std::uint32_t otherOrderCost = 30;   // the words have another order in the text
inline constexpr std::uint32_t looselyWholeCost = 8;  // only stop words are left in the text
inline constexpr std::uint32_t headCost = 40;         // a part matches, with the noun of the text
inline constexpr std::uint32_t partCost = 70;         // a part matches, without the noun
inline constexpr std::uint32_t extraWordCost = 4;     // for each word of the text that is not in the query
inline constexpr std::uint32_t mostExtraWords = 8;    // further extra words cost nothing
inline constexpr std::uint32_t spreadCost = 140;      // the words are in several texts of the character
inline constexpr std::uint32_t unnamedCost = 6;       // the words are not in the name
// Many HTML names are abbreviations that look like other words: "die" is the name of the diaeresis.
inline constexpr std::uint32_t htmlNameCost = 25;
inline constexpr std::uint32_t htmlNameInNameCost = 4;  // used instead, if the word is also in the name
// Few systems can show private-use characters. They come last, unless the query is the whole name.
inline constexpr std::uint32_t privateUseCost = 400;
inline constexpr std::uint32_t privateUseNameCost = 50;  // one-word names are also everyday words

// The cost of a match with the meaning of a Han character. It puts the character after most other matches.
inline constexpr std::uint32_t hanMeaningCost = 300;

// Costs that order the different ways in which a query can be understood.
inline constexpr std::uint32_t behindExactCost = 75;   // after the results with a text equal to the query
inline constexpr std::uint32_t otherReadingCost = 45;  // words were split or joined, or another language
inline constexpr std::uint32_t likelyNumberOfOtherCost = 10;  // a code point beyond the catalog
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
  /// The number of matched words that are shifted by the same distance between query and text. It equals the
  /// number of matched words if the text has them in the order of the query, without gaps.
  unsigned aligned = 0;
  unsigned variants = 0;  ///< the number of words that match only as variants
  unsigned prefixes = 0;  ///< the number of words that are only the beginning of a word
  bool head = false;      ///< whether the noun of the text matches
};

/// Returns true if the query contains all words of the text, except for stop words. A query that repeats a
/// word ("dot dot dot") does not cover a text that contains the word once.
inline bool coversText(const Phrase& phrase, const TextMatch& match) {
  if (match.words + match.stopWords > phrase.words) return false;
  return match.words + match.stopWords >= phrase.words || match.words >= phrase.coreWords;
}

/// Returns the part of the cost of a match that depends on the text of the character in which the words of
/// the query are. The other part is what the words lose: see lossPercent().
inline std::uint32_t textCost(const Phrase& phrase, const TextMatch& match) {
  const unsigned matched = match.words + match.stopWords;
  const std::uint32_t left = phrase.words > matched ? phrase.words - matched : 0;
  std::uint32_t cost = kindCost(phrase.kind) + extraWordCost * std::min(left, mostExtraWords);
  if (match.aligned < matched) cost += left > 0 ? otherOrderInPartCost : otherOrderCost;
  cost += variantWordCost * match.variants + prefixWordCost * match.prefixes;
  if (coversText(phrase, match)) return cost + (left > 0 ? looselyWholeCost : 0);
  return cost + (match.head ? headCost : partCost);
}

// A query of one to three letters is probably the beginning of a longer word, but is also the name of
// syllables of rare scripts. This cost is added to letters of scripts, so that for "eu" the euro sign comes
// before the syllable "eu".
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
