// SPDX-License-Identifier: MIT
#include "glyphorium/characters/names.h"

#include <algorithm>

#include "glyphorium/characters/characters.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

// The Unicode Standard computes the names of Hangul syllables from the short names of their letters.
constexpr char32_t firstHangulSyllable = 0xAC00;
constexpr char32_t lastHangulSyllable = 0xD7A3;
constexpr std::string_view hangulPrefix = "HANGUL SYLLABLE ";
constexpr std::string_view leading[] = {"G",  "GG", "N", "D",  "DD", "R", "M", "B", "BB", "S",
                                        "SS", "",   "J", "JJ", "C",  "K", "T", "P", "H"};
constexpr std::string_view vowels[] = {"A",  "AE", "YA", "YAE", "EO", "E",  "YEO", "YE", "O",  "WA", "WAE",
                                       "OE", "YO", "U",  "WEO", "WE", "WI", "YU",  "EU", "YI", "I"};
constexpr std::string_view trailing[] = {"",   "G",  "GG", "GS", "N",  "NJ", "NH", "D", "L",  "LG",
                                         "LM", "LB", "LS", "LT", "LP", "LH", "M",  "B", "BS", "S",
                                         "SS", "NG", "J",  "C",  "K",  "T",  "P",  "H"};

std::string upperHex(char32_t codePoint) {
  std::string hex = CodeFormats().getHex(codePoint);
  std::transform(hex.begin(), hex.end(), hex.begin(), ascii::raised);
  return hex;
}

std::string hangulName(char32_t syllable) {
  const char32_t number = syllable - firstHangulSyllable;
  const char32_t perVowel = std::size(trailing);
  const char32_t perLeading = std::size(vowels) * perVowel;
  std::string name(hangulPrefix);
  name += leading[number / perLeading];
  name += vowels[number % perLeading / perVowel];
  return name += trailing[number % perVowel];
}

bool isSame(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ascii::lowered(x) == ascii::lowered(y); });
}

// Returns the code point that has this name, if the name is computed from the code point: "CJK UNIFIED
// IDEOGRAPH-6F22". Otherwise returns nullopt.
std::optional<char32_t> computedCodePoint(std::string_view name) {
  if (isSame(name.substr(0, hangulPrefix.size()), hangulPrefix)) {
    for (char32_t syllable = firstHangulSyllable; syllable <= lastHangulSyllable; ++syllable) {
      if (isSame(hangulName(syllable), name)) return syllable;
    }
    return std::nullopt;
  }
  const std::size_t hyphen = name.rfind('-');
  if (hyphen == std::string_view::npos) return std::nullopt;
  const auto codePoint = ascii::number(name.substr(hyphen + 1), 16);
  if (!codePoint || !isSame(characterName(*codePoint), name)) return std::nullopt;
  return *codePoint;
}

}  // namespace

std::string characterName(char32_t codePoint) {
  const CharacterStatus status = characterStatus(codePoint);
  if (status != CharacterStatus::assigned) return {};
  if (codePoint >= firstHangulSyllable && codePoint <= lastHangulSyllable) return hangulName(codePoint);
  if (const auto range = nameRanges.positionUpTo(codePoint)) {
    const std::string_view line = nameRanges.line(*range);
    if (codePoint <= ascii::number(column(line, 0), 16))
      return std::string(column(line, 1)) + upperHex(codePoint);
  }
  if (const auto name = laterNames.find(codePoint)) return std::string(*name);
  const auto entry = findName(CodeFormats().getHex(codePoint));
  return entry ? std::string(entry->name) : std::string();
}

std::string characterNameOrLabel(char32_t codePoint) {
  std::string_view label;
  switch (characterStatus(codePoint)) {
    case CharacterStatus::assigned:
      return characterName(codePoint);
    case CharacterStatus::control:
      label = "control";
      break;
    case CharacterStatus::privateUse:
      label = "private-use";
      break;
    case CharacterStatus::surrogate:
      label = "surrogate";
      break;
    case CharacterStatus::noncharacter:
      label = "noncharacter";
      break;
    case CharacterStatus::unassigned:
      label = "reserved";
      break;
    case CharacterStatus::none:
      return {};
  }
  return "<" + std::string(label) + "-" + upperHex(codePoint) + ">";
}

std::optional<char32_t> characterNamed(std::string_view name) {
  if (const auto codePoint = findCodePoint(name); codePoint && isSame(characterName(*codePoint), name))
    return codePoint;
  for (std::size_t i = 0; i < laterNames.size(); ++i) {
    if (isSame(laterNames.line(i), name)) return laterNames.codePoint(i);
  }
  for (std::size_t i = 0; i < nameAliases.size(); ++i) {
    const std::string_view line = nameAliases.line(i);
    for (std::size_t alias = 1; !column(line, alias).empty(); alias += 2) {
      if (isSame(column(line, alias), name)) return nameAliases.codePoint(i);
    }
  }
  return computedCodePoint(name);
}

}  // namespace glyph
