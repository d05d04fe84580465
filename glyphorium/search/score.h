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
// - what the words of the query lose: each word has a weight, and loses a part of it that depends on how it
//   matches. A word that does not match loses all of it;
// - how well the text of the character that matches best covers the query, and the query this text;
// - the prior of the character, from 0 to 80, which decides between equally good matches: see static_rank.h.
// See docs/search.md for a description with examples.

// The weight of a word is ten points for each halving of the number of texts that contain it: a rare word
// says more about the character that is meant than a frequent one.
inline constexpr std::uint32_t pointsPerHalving = 10;
inline constexpr int mostHalvings = 12;
// The weight of words that only join other words ("with") or say that the query is about a character
// ("sign").
inline constexpr std::uint32_t stopWordWeight = 8;
// The weight of a word that is in no text. Less than that of a rare word, because the word may be a mistake.
inline constexpr std::uint32_t unknownWordWeight = 70;

// The least weight of a single letter: "a with dot" means a letter a, though many texts have an a.
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

/// Returns the least loss, in percent, of a word that matches a text of this kind.
inline std::uint32_t lossPercent(PhraseKind kind) {
  // A note may mention what the character is not. A comment may mention where it is used.
  return kind == PhraseKind::note ? 75 : kind == PhraseKind::comment ? 20 : 0;
}

// What a word adds that matches only as a variant, and what a word adds that does not match.
inline constexpr std::uint32_t variantWordCost = 12;
inline constexpr std::uint32_t missingWordCost = 90;

// A character is left out if the words that it lacks have more than this share of the weight of all words, in
// percent, beyond what the best character lacks.
inline constexpr std::uint32_t mostMissing = 62;
inline constexpr std::uint32_t mostMissingBeyondBest = 20;
// The same for what its words lose. So characters that match only by a note are left out if others match
// better.
inline constexpr std::uint32_t mostLossBeyondBest = 55;

// What the text adds that matches best. A text that the query covers adds nothing.
inline constexpr std::uint32_t otherOrderInPartCost = 10;
inline constexpr std::uint32_t otherOrderCost = 30;   // the words have another order in the text
inline constexpr std::uint32_t looselyWholeCost = 8;  // only stop words are left in the text
inline constexpr std::uint32_t headCost = 40;         // the query has the noun of the text: "heart"
inline constexpr std::uint32_t partCost = 70;         // the query has other words of the text
inline constexpr std::uint32_t extraWordCost = 4;     // for each word of the text that is not in the query
inline constexpr std::uint32_t mostExtraWords = 8;    // further extra words cost nothing
inline constexpr std::uint32_t spreadCost = 140;      // the words are in several texts of the character
inline constexpr std::uint32_t unnamedCost = 6;       // the words are not in the name
inline constexpr std::uint32_t htmlNameCost = 8;  // many HTML names are abbreviations that are words: "die"
inline constexpr std::uint32_t htmlNameInNameCost = 4;  // the same, if the word is also in the name
// Few systems can show private-use characters. They come last, unless the query is the whole name.
inline constexpr std::uint32_t privateUseCost = 400;
inline constexpr std::uint32_t privateUseNameCost = 8;  // a name of one word is also an everyday word

// Han characters come after all others that match.
inline constexpr std::uint32_t hanMeaningCost = 300;

// The cost of results that are not found by words, for example by a code or an HTML name.
inline constexpr std::uint32_t behindExactCost = 75;   // after the results with a text equal to the query
inline constexpr std::uint32_t otherReadingCost = 45;  // added if words of the query were split or joined
inline constexpr std::uint32_t likelyNumberOfOtherCost = 10;  // a number, as the code of a rarer character
inline constexpr std::uint32_t lastCost = 8000;               // after all other results

/// The cost of a kind of text. The name says a little more about a character than its other texts do. A
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
  bool head = false;       ///< whether the noun of the text matches
};

/// Returns whether the query covers the whole text, except for stop words. A query that repeats a word ("dot
/// dot dot") does not cover a text that has the word once.
inline bool coversText(const Phrase& phrase, const TextMatch& match) {
  if (match.words + match.stopWords > phrase.words) return false;
  return match.words + match.stopWords >= phrase.words || match.words >= phrase.coreWords;
}

/// Returns the cost of a text, without that of the words.
inline std::uint32_t textCost(const Phrase& phrase, const TextMatch& match) {
  const unsigned matched = match.words + match.stopWords;
  const std::uint32_t left = phrase.words > matched ? phrase.words - matched : 0;
  std::uint32_t cost = kindCost(phrase.kind) + extraWordCost * std::min(left, mostExtraWords);
  if (match.aligned < matched) cost += left > 0 ? otherOrderInPartCost : otherOrderCost;
  cost += variantWordCost * match.variants;
  if (coversText(phrase, match)) return cost + (left > 0 ? looselyWholeCost : 0);
  return cost + (match.head ? headCost : partCost);
}

/// Returns what the character adds to the cost of a match. `wholeName` is the number of words of its name, if
/// the query is the whole name, and otherwise 0.
inline std::uint32_t priorCost(std::uint8_t prior, unsigned wholeName) {
  const bool isPrivateUse = prior >= privateUsePrior && prior < behindPrivateUsePrior;
  if (!isPrivateUse || wholeName > 1) return prior;
  return prior + (wholeName == 1 ? privateUseNameCost : privateUseCost);
}

}  // namespace glyph::search
