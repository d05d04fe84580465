// SPDX-License-Identifier: MIT
#include "glyphorium/search/supplement_search.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/merging.h"
#include "glyphorium/search/prepared_indexes.h"
#include "glyphorium/search/query_answering.h"
#include "glyphorium/search/skin_tones.h"
#include "glyphorium/search/static_rank.h"
#include "glyphorium/search/words.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

std::size_t placeOfKey(char32_t key) {
  const std::uint32_t doc = key < firstEmojiNumber ? catalogIndex().docOfCodePoint(key) : Index::noDoc;
  return doc == Index::noDoc ? preparedRowCount() + key : catalogIndex().docEntity[doc];
}

constexpr std::size_t mostExact = 12;

bool isMostWanted(const SearchResult& result) {
  if (result.index >= preparedRowCount()) return false;
  const std::uint32_t doc = catalogIndex().docOfCodePoint(preparedRow(result.index).codePoint);
  return doc != Index::noDoc && catalogIndex().docPrior[doc] <= mostWantedPrior;
}

// Moves the emoji whose CLDR name consists of exactly `words` to the front. Otherwise the name of another
// emoji may match equally well: "grinning face with smiling eyes" is the Unicode name of one emoji and the
// CLDR name of another. The most wanted characters, such as the arrows, stay before all emoji.
void putNamedEmojiFirst(SearchResults& found, const std::string& words) {
  const auto end =
      found.results.begin() + static_cast<std::ptrdiff_t>(std::min(found.results.size(), mostExact));
  const auto placeOfEmoji = [](const SearchResult& result) {
    return result.exact && !isInQuery(result) ? emojiPlace(textAt(result.index)) : std::nullopt;
  };
  for (auto result = found.results.begin(); result != end; ++result) {
    const auto place = placeOfEmoji(*result);
    if (!place && isMostWanted(*result)) return;
    if (!place || wordsOf(annotationOf(emojiAt(*place).text, "en").name) != words) continue;
    std::rotate(found.results.begin(), result, result + 1);
    return;
  }
}

SearchResults answerFromBoth(const Index& ofCatalog, const ParsedQuery& query, SearchOptions options) {
  options.limit = std::max(options.limit, mostExact);
  Answer supplement = answer(supplementIndex(), query, options, false);
  const bool isFound = supplement.settled && supplement.whole && !supplement.byMeaning;
  Answer catalog = answer(ofCatalog, query, options, !isFound);
  if (!supplement.settled && (catalog.results.results.empty() || catalog.results.lacksWords))
    supplement = answer(supplementIndex(), query, options, true);
  for (SearchResult& result : supplement.results.results)
    result.index = placeOfKey(static_cast<char32_t>(result.index));
  // If only Han characters match the query as typed, by their meanings, the results of the catalog for a
  // changed query are kept, too.
  if (supplement.byMeaning && !catalog.results.results.empty() &&
      change(supplement.results) < change(catalog.results)) {
    supplement.results.approximate = catalog.results.approximate;
    supplement.results.lacksWords = catalog.results.lacksWords;
  }
  // An emoji of the catalog may be in both answers: it is also in the supplement if its variants have other
  // names.
  SearchResults found = merged(std::move(catalog.results), std::move(supplement.results), options.limit);
  putNamedEmojiFirst(found, joined(query.words, " "));
  return found;
}

// Returns the variant of an emoji with these skin tones. Several variants may have the same tones, for
// example those with two women and with two men. In this case, returns the variant whose name without the
// tones is `words`. If no variant has this name, returns the first variant.
std::string_view variantWith(std::size_t place, const std::vector<SkinTone>& tones,
                             const std::vector<std::string>& words) {
  std::string_view first;
  for (const std::size_t variant : emojiVariants(place)) {
    const std::string_view text = emojiAt(variant).text;
    std::vector<SkinTone> own = skinTonesOf(text);
    // If the query has a single tone, it means this tone for all people of an emoji.
    if (tones.size() == 1 && std::adjacent_find(own.begin(), own.end(), std::not_equal_to<>()) == own.end())
      own.resize(1);
    if (own != tones) continue;
    if (first.empty()) first = text;
    for (const SearchLanguage& language : searchLanguages) {
      if (wordsWithoutSkinTones(annotationOf(text, language.code).name) == words) return text;
    }
  }
  return first;
}

// Searches for emoji and returns those of their variants that have these skin tones. The names of the tones
// must have been removed from query.words.
SearchResults variants(const Index& catalog, ParsedQuery query, const std::vector<SkinTone>& tones,
                       SearchOptions options) {
  const std::size_t limit = std::exchange(options.limit, preparedRowCount());
  query.bareText = joined(query.words, " ");
  query.signs.clear();
  query.otherCharacters.clear();
  SearchResults found = answerFromBoth(catalog, query, options);
  std::erase_if(found.results, [&](SearchResult& result) {
    const auto place = emojiPlace(textAt(result.index));
    if (!place) return true;
    const std::string_view text = variantWith(*place, tones, query.words);
    if (text.empty()) return true;
    result.index = placeOfKey(*characterKey(text));
    result.nameRanges.clear();
    return false;
  });
  found.total = found.results.size();
  if (found.results.size() > limit) found.results.resize(limit);
  return found;
}

// Returns true if the query may be a name that Unicode computes from a code point: "Hangul Syllable Ga", "CJK
// Unified Ideograph-6F22". For other queries this saves a call of characterNamed(), which takes about a
// millisecond.
bool maybeComputedName(const ParsedQuery& query) {
  const std::vector<std::string>& words = query.words;
  if (words.size() == 3 && words[0] == "hangul" && words[1] == "syllable") return true;
  const std::size_t hyphen = query.bareText.rfind('-');
  return words.size() > 2 && hyphen != std::string::npos &&
         ascii::number(std::string_view(query.bareText).substr(hyphen + 1), 16).value_or(0) >= 0x1000;
}

// Returns the characters of the query that are in no index, such as private-use characters and characters
// with computed names.
std::vector<SearchResult> withoutIndex(const ParsedQuery& query, bool isFound) {
  std::vector<SearchResult> found;
  const auto add = [&](char32_t codePoint, SearchField field) {
    const CharacterStatus status = characterStatus(codePoint);
    const bool isCharacter = status == CharacterStatus::assigned || status == CharacterStatus::control ||
                             status == CharacterStatus::privateUse;
    if (!isCharacter || catalogIndex().docOfCodePoint(codePoint) != Index::noDoc ||
        supplementIndex().docOfCodePoint(codePoint) != Index::noDoc)
      return;
    found.push_back({placeOfKey(codePoint), field, {}, 0, true});
  };
  for (const ParsedCode& code : query.codes) {
    if (code.htmlName.empty()) add(code.codePoint, SearchField::code);
  }
  for (const std::uint32_t number : query.likelyNumbers) add(number, SearchField::code);
  for (const std::uint32_t character : query.characters) add(character, SearchField::character);
  // The indexes have the words of all names except those that are computed from code points.
  if (!isFound && maybeComputedName(query)) {
    if (const auto codePoint = characterNamed(query.bareText))
      found.push_back({placeOfKey(*codePoint), SearchField::name, {}, 0, true});
  }
  return found;
}

// Returns the text that consists of the codes of the query, or the only character for which the query is a
// notation. Empty if the query is anything else.
std::string textOfCodes(const ParsedQuery& query) {
  std::string text;
  if (query.notations.certain.size() == 1) return textOfCharacterKey(query.notations.certain.front());
  for (const ParsedCode& code : query.codes) {
    if (!code.htmlName.empty()) return {};
    text += utf8(static_cast<char32_t>(code.codePoint));
  }
  if (query.codes.empty()) {
    for (const std::uint32_t number : query.likelyNumbers) text += utf8(static_cast<char32_t>(number));
  }
  return text;
}

}  // namespace

std::optional<std::size_t> placeOf(std::string_view text) {
  const auto key = characterKey(text);
  return key ? std::optional(placeOfKey(*key)) : std::nullopt;
}

std::string textAt(std::size_t place) {
  if (place >= preparedRowCount())
    return textOfCharacterKey(static_cast<char32_t>(place - preparedRowCount()));
  return utf8(preparedRow(place).codePoint);
}

SearchResults queryEverything(const Index& catalog, std::string_view text, const SearchOptions& options) {
  const auto parsed = parseQuery(text);
  if (!parsed) return {};
  ParsedQuery reduced = *parsed;
  if (const std::vector<SkinTone> tones = takeSkinTones(reduced.words);
      !tones.empty() && !reduced.words.empty()) {
    SearchResults found = variants(catalog, std::move(reduced), tones, options);
    if (!found.results.empty()) return found;
  }
  SearchResults found = answerFromBoth(catalog, *parsed, options);
  std::vector<SearchResult> others = withoutIndex(*parsed, !found.results.empty() && !found.approximate);
  if (!others.empty() && found.approximate) found = {};
  // If the query is an emoji of several code points, it comes before the characters that it consists of.
  const std::string ofCodes = textOfCodes(*parsed);
  const auto key = characterKey(ofCodes.empty() ? trimmed(text) : ofCodes);
  const bool isEmoji = key && *key >= firstEmojiNumber;
  if (isEmoji) {
    const std::size_t place = placeOfKey(*key);
    std::erase_if(found.results, [&](const SearchResult& one) { return one.index == place; });
    others.insert(others.begin(), {place, SearchField::character, {}, 0, true});
  }
  const auto at = isEmoji ? found.results.begin()
                          : std::find_if_not(found.results.begin(), found.results.end(), isInQuery);
  found.results.insert(at, others.begin(), others.end());
  found.total += others.size();
  if (found.results.size() > options.limit) found.results.resize(options.limit);
  return found;
}

}  // namespace glyph::search
