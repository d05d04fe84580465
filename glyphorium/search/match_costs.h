// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <cstdint>

#include "glyphorium/search/index.h"
#include "glyphorium/search/matching.h"

namespace glyph::search {

// The ranking. A match costs the base of its tier, some detail within the tier, and the character's prior
// (static_rank.cpp). Bases are so far apart that nothing within a tier reaches the next one; wholeBase stands
// in matching.h.
//
// - Who types a whole name, alias, HTML name, term or annotation means what is called so. A name is hardly
//   better than the others here: "lightning" is rather the sign of high voltage than the astrological one
//   that Unicode calls so, which the prior knows and the names do not.
// - Then all words as whole words of one text, in which they belong together; then of several texts.
// - Then words still being typed, in the same order.
// - A group says little of a character, a word within a usage note less.
// - Mistyped words only come with queries that match nothing as they stand.
inline constexpr std::uint32_t exactBase = 0;
inline constexpr std::uint32_t looselyExactBase = 50;  // the same words in another order, or without fillers
inline constexpr std::uint32_t looselyExactWordBase = 8;
inline constexpr std::uint32_t exactVariantExtra =
    12;  // less than what tells a common character from a rare one
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

// The name itself says a little more than what else a character is called; a keyword names a trait that many
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
inline constexpr std::uint32_t extraWordDetail = 4;  // for each word of the phrase that nobody asked for
inline constexpr std::uint32_t mostExtraWords = 8;
inline constexpr std::uint32_t orderDetail = 3;    // the words stand in another order
inline constexpr std::uint32_t unnamedDetail = 6;  // the words are not in the name: "star" is rather ★ than *
inline constexpr std::uint32_t fillerDetail = 10;  // for each filler of the query that is missing
inline constexpr std::uint32_t mostFillers = 3;

/// The cost with what the character's own name, which may hold the words as well as the phrase does, tells of
/// it.
inline std::uint32_t withName(std::uint32_t cost, bool named, bool byHtmlName) {
  if (!named) return cost + unnamedDetail;
  // An HTML name that is a word of the character's own name is no accidental abbreviation: "sigma".
  return cost - (byHtmlName ? htmlNameDetail / 2 : 0);
}

// Characters for private use, which few systems can show, stand behind all that is not called just what the
// query says.
inline constexpr std::uint32_t privateUseExtra = 400;

/// What the character's prior adds.
inline std::uint32_t priorCost(std::uint32_t cost, std::uint8_t prior) {
  return prior + (cost >= wholeBase && prior >= privateUsePrior ? privateUseExtra : 0);
}

/// How a phrase matches all the words of a query.
struct PhraseMatch {
  WordMatch worst;
  unsigned words;    // of the query, without its fillers, that the phrase matches: all
  unsigned fillers;  // of the query's fillers that it matches
  unsigned aligned;  // words and fillers that stand at the same place in both
  unsigned queryWords;
  unsigned queryFillers;
};

inline std::uint32_t missingFillers(unsigned matched, unsigned all) {
  return fillerDetail * std::min<std::uint32_t>(all - std::min(matched, all), mostFillers);
}

inline std::uint32_t phraseCost(const Phrase& phrase, const PhraseMatch& match) {
  const unsigned asked = match.queryWords + match.queryFillers;
  const unsigned matched = match.words + match.fillers;
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
         (aligned ? 0 : orderDetail) + missingFillers(match.fillers, match.queryFillers);
}

/// What it costs when the words stand in several texts.
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
