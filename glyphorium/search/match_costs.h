// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>

#include "glyphorium/search/index.h"
#include "glyphorium/search/query_word.h"
#include "glyphorium/search/static_rank.h"

namespace glyph::search {

// The ranking. The cost of a match is the base of its tier, details within the tier, and the prior of the
// character (static_rank.h). The bases are so far apart that the details never reach the next tier.
//
// The tiers, best first:
// - The query is a whole name, alias, HTML name, term or annotation. A name is hardly better than the others:
//   "lightning" rather means the high voltage sign than the astrological sign that has this name. The prior
//   tells these two apart.
// - All words are whole words of one text. Then the same in several texts of the character.
// - All words begin words of one text. Then the same in several texts.
// - A word is in the name of the character's group only, then in a usage note only: both say little.
// - A word is mistyped. This is tried only if nothing matches the query as it stands.
inline constexpr std::uint32_t exactBase = 0;
inline constexpr std::uint32_t looselyExactBase = 50;  // in another order, or without the stop words
inline constexpr std::uint32_t looselyExactWordBase = 8;
inline constexpr std::uint32_t exactVariantExtra = 12;  // less than between a common and a rare character
inline constexpr std::uint32_t wholeBase = 200;  // a smaller cost, prior included: the whole text is matched
inline constexpr std::uint32_t wholeSpreadBase = 400;
inline constexpr std::uint32_t prefixBase = 600;
inline constexpr std::uint32_t prefixSpreadBase = 800;
inline constexpr std::uint32_t groupBase = 1000;
inline constexpr std::uint32_t noteBase = 1200;
inline constexpr std::uint32_t exactTypoBase = 1400;
inline constexpr std::uint32_t typoBase = 1600;
inline constexpr std::uint32_t typoPrefixBase = 1800;
inline constexpr std::uint32_t spreadTypo = 400;
inline constexpr std::uint32_t variantExtra = 60;

// Costs of what is found otherwise than by words: before all matches of words, behind those that match a
// whole text, and behind all.
inline constexpr std::uint32_t firstCost = 0;
inline constexpr std::uint32_t behindExactCost = 195;
inline constexpr std::uint32_t fewerWordsBase = 4000;  // words of the query were left out
inline constexpr std::uint32_t lastCost = 8000;

// An HTML name is often an abbreviation that happens to be a word: "die", "image".
inline constexpr std::uint32_t htmlNameDetail = 8;

// The name says a little more than the character's other texts. A keyword names a trait that many characters
// share.
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
inline constexpr std::uint32_t mostExtraWords = 8;
inline constexpr std::uint32_t orderDetail = 3;      // the words stand in another order
inline constexpr std::uint32_t unnamedDetail = 6;    // the words are not in the name: "star" is ★, not *
inline constexpr std::uint32_t stopWordDetail = 10;  // for each stop word of the query that is missing
inline constexpr std::uint32_t mostStopWords = 3;

/// The cost of a match, given whether the character's own name has the words as well as the matching phrase
/// does, and whether that phrase is an HTML name.
inline std::uint32_t withName(std::uint32_t cost, bool named, bool byHtmlName) {
  if (!named) return cost + unnamedDetail;
  // An HTML name that is also in the character's name is not an accidental abbreviation: "sigma".
  return cost - (byHtmlName ? htmlNameDetail / 2 : 0);
}

// Few systems can show characters for private use. They stand behind all others, unless the query is just
// what they are called.
inline constexpr std::uint32_t privateUseExtra = 400;

/// What the character's prior adds to the cost of a match.
inline std::uint32_t priorCost(std::uint32_t cost, std::uint8_t prior) {
  return prior + (cost >= wholeBase && prior >= privateUsePrior ? privateUseExtra : 0);
}

/// How a phrase matches all the words of a query.
struct PhraseMatch {
  WordMatch worst;     ///< of its words
  unsigned words;      ///< matched words of the query, stop words excepted: all of them
  unsigned stopWords;  ///< matched stop words of the query
  unsigned aligned;    ///< matched words that have the same position in the query and in the phrase
  unsigned queryWords;
  unsigned queryStopWords;
};

inline std::uint32_t missingStopWords(unsigned matched, unsigned all) {
  return stopWordDetail * std::min<std::uint32_t>(all - std::min(matched, all), mostStopWords);
}

/// The cost of a phrase that matches all words.
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

/// The cost if the words are in several texts of the character. `missing` is the cost of missing stop words.
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
