// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"
#include "glyphorium/search/static_rank.h"

namespace glyph::search {

// The ranking. The cost of a match is the sum of three parts: the base of its tier, some details, and the
// prior of the character (see static_rank.h). The bases are so far apart that the details cannot move a match
// into the next tier.
//
// The tiers, best first:
// - The query is the whole of one text: a name, alias, HTML name, term or annotation. A match of a name is
//   only a little better than a match of another text. For example, "lightning" means the high voltage sign
//   more often than the astrological sign that is named "lightning". The prior decides between the two.
// - All words of the query are whole words of one text. Next: they are whole words in several texts of the
//   character. The code calls such words "spread".
// - Each word of the query is the beginning of a word in one text. Next: the same in several texts.
// - A word of the query is only in the name of the character's group. Next: a word is only in a usage note.
//   Both are weak evidence that the character is meant.
// - A word of the query is mistyped. This is tried only if nothing matches the query as typed.
inline constexpr std::uint32_t exactBase = 0;
// For a query that is a whole text, except that the order of the words or the stop words differ.
inline constexpr std::uint32_t looselyExactBase = 50;
inline constexpr std::uint32_t looselyExactWordBase = 8;  // the same for a query of one word
// For a query that is a whole text, except that a word is a variant. Less than the difference between the
// priors of a common and a rare character.
inline constexpr std::uint32_t exactVariantExtra = 12;
// A match with a lower cost, including the prior, is a match of a whole text.
inline constexpr std::uint32_t wholeBase = 200;
inline constexpr std::uint32_t wholeSpreadBase = 400;
inline constexpr std::uint32_t prefixBase = 600;
inline constexpr std::uint32_t prefixSpreadBase = 800;
inline constexpr std::uint32_t groupBase = 1000;
inline constexpr std::uint32_t noteBase = 1200;
inline constexpr std::uint32_t exactTypoBase = 1400;
inline constexpr std::uint32_t typoBase = 1600;
inline constexpr std::uint32_t typoPrefixBase = 1800;
inline constexpr std::uint32_t spreadTypo = 400;   // added to the base if the words are in several texts
inline constexpr std::uint32_t variantExtra = 60;  // added to the base for a singular or synonym

// Costs of results that are not found by words, for example by a code or an HTML name. fewerWordsBase is
// different: it is added to the cost of a match if words of the query were left out.
inline constexpr std::uint32_t firstCost = 0;          // before all results that are found by words
inline constexpr std::uint32_t behindExactCost = 195;  // after the results with a text equal to the query
inline constexpr std::uint32_t fewerWordsBase = 4000;
inline constexpr std::uint32_t lastCost = 8000;  // after all other results

// Extra cost of an HTML name. Many HTML names are abbreviations that happen to be words: "die", "image".
inline constexpr std::uint32_t htmlNameDetail = 8;

// Extra cost of each kind of text. The name identifies a character a little better than the other texts do. A
// keyword identifies a character less well, because it names a property that many characters share.
inline std::uint32_t kindDetail(PhraseKind kind) {
  switch (kind) {
    case PhraseKind::name:
    case PhraseKind::replacedName:
      return 0;
    case PhraseKind::htmlName:
      return htmlNameDetail;
    case PhraseKind::keyword:
      return 9;
    default:
      return 3;
  }
}
inline constexpr std::uint32_t extraWordDetail = 4;  // for each word of the phrase that is not in the query
inline constexpr std::uint32_t mostExtraWords = 8;   // further extra words cost nothing
// The words of the query have other positions in the phrase.
inline constexpr std::uint32_t orderDetail = 3;
// The words of the query are not in the name. For example, "star" means ★ rather than *.
inline constexpr std::uint32_t unnamedDetail = 6;
inline constexpr std::uint32_t stopWordDetail = 10;  // for each stop word of the query that is not matched
inline constexpr std::uint32_t mostStopWords = 3;    // further missing stop words cost nothing

/// Returns the cost of a match, adjusted for the character's name. `named` is true if the name matches the
/// words at least as well as the best phrase does. `byHtmlName` is true if the best phrase is an HTML name.
inline std::uint32_t withName(std::uint32_t cost, bool named, bool byHtmlName) {
  if (!named) return cost + unnamedDetail;
  // An HTML name whose words are also in the character's name ("sigma") is a real word and not an
  // abbreviation.
  return cost - (byHtmlName ? htmlNameDetail / 2 : 0);
}

// Extra cost of private-use characters, because few systems can show them. It is not added if the query is a
// whole text of the character, for example its name.
inline constexpr std::uint32_t privateUseExtra = 400;

/// Returns what the character's prior adds to a match of this cost.
inline std::uint32_t priorCost(std::uint32_t cost, std::uint8_t prior) {
  return prior + (cost >= wholeBase && prior >= privateUsePrior ? privateUseExtra : 0);
}

/// How a phrase matches the words of a query. The phrase matches all words of the query that are not stop
/// words. If all words of the query are stop words, they are counted as ordinary words.
struct PhraseMatch {
  WordMatch worst;      ///< the worst match of a word that is not a stop word
  unsigned words;       ///< the number of matched words, without stop words; the same as queryWords
  unsigned stopWords;   ///< the number of matched stop words
  unsigned aligned;     ///< the number of matched words with the same position in the query and the phrase
  unsigned queryWords;  ///< the number of words in the query, without stop words
  unsigned queryStopWords;  ///< the number of stop words in the query
};

/// Returns the cost of missing stop words, given the number of matched stop words and of all stop words of
/// the query.
inline std::uint32_t missingStopWords(unsigned matched, unsigned all) {
  return stopWordDetail * std::min<std::uint32_t>(all - std::min(matched, all), mostStopWords);
}

/// Returns the cost of a match of all words in one phrase, without the prior of the character.
inline std::uint32_t phraseCost(const Phrase& phrase, const PhraseMatch& match) {
  const unsigned asked = match.queryWords + match.queryStopWords;
  const unsigned matched = match.words + match.stopWords;
  const unsigned left = phrase.words > matched ? phrase.words - matched : 0;
  const bool all = left == 0 || match.words >= phrase.coreWords;
  const bool aligned = match.aligned == asked;
  const bool exact = aligned && phrase.words == asked;
  const bool several = asked > 1;
  std::uint32_t base = 0;
  switch (match.worst) {
    case WordMatch::whole:
      base = exact ? exactBase : !all ? wholeBase : several ? looselyExactBase : looselyExactWordBase;
      break;
    case WordMatch::variant:
      base = !all ? wholeBase + variantExtra : exactVariantExtra + (several ? looselyExactBase : 0);
      break;
    case WordMatch::prefix:
      base = prefixBase;
      break;
    case WordMatch::group:
    case WordMatch::note:
      base = noteBase;
      break;
    case WordMatch::typo:
      base = all ? exactTypoBase : typoBase;
      break;
    case WordMatch::typoPrefix:
      base = typoPrefixBase;
      break;
  }
  return base + kindDetail(phrase.kind) + extraWordDetail * std::min(left, mostExtraWords) +
         (aligned ? 0 : orderDetail) + missingStopWords(match.stopWords, match.queryStopWords);
}

/// Returns the cost of a match of the words in several texts of one character, without the prior of the
/// character. `worst` is the worst match of a word, `missing` the cost of missing stop words.
inline std::uint32_t spreadCost(WordMatch worst, std::uint32_t missing) {
  switch (worst) {
    case WordMatch::whole:
      return wholeSpreadBase + missing;
    case WordMatch::variant:
      return wholeSpreadBase + variantExtra + missing;
    case WordMatch::prefix:
      return prefixSpreadBase + missing;
    case WordMatch::group:
      return groupBase + missing;
    case WordMatch::note:
      return noteBase + missing;
    case WordMatch::typo:
      return typoBase + spreadTypo + missing;
    case WordMatch::typoPrefix:
      break;
  }
  return typoPrefixBase + spreadTypo + missing;
}

}  // namespace glyph::search
