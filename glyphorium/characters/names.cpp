// SPDX-License-Identifier: MIT
#include "glyphorium/characters/names.h"

#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/hangul.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

std::string upperHex(char32_t codePoint) {
  return ascii::uppercased(CodeFormats().getHex(codePoint));
}

// Returns the code point that has this name, if the name is computed from the code point: "CJK UNIFIED
// IDEOGRAPH-6F22". Otherwise returns nullopt.
std::optional<char32_t> computedCodePoint(std::string_view name) {
  if (const auto syllable = hangulSyllableNamed(name)) return syllable;
  const std::size_t hyphen = name.rfind('-');
  if (hyphen == std::string_view::npos) return std::nullopt;
  const auto codePoint = ascii::number(name.substr(hyphen + 1), 16);
  if (!codePoint || !ascii::equalIgnoringCase(characterName(*codePoint), name)) return std::nullopt;
  return *codePoint;
}

}  // namespace

std::string characterName(char32_t codePoint) {
  const CharacterStatus status = characterStatus(codePoint);
  if (status != CharacterStatus::assigned) return {};
  if (isHangulSyllable(codePoint)) return hangulName(codePoint);
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
  if (const auto codePoint = findCodePoint(name);
      codePoint && ascii::equalIgnoringCase(characterName(*codePoint), name))
    return codePoint;
  for (std::size_t i = 0; i < laterNames.size(); ++i) {
    if (ascii::equalIgnoringCase(laterNames.line(i), name)) return laterNames.codePoint(i);
  }
  for (std::size_t i = 0; i < nameAliases.size(); ++i) {
    const std::string_view line = nameAliases.line(i);
    for (std::size_t alias = 1; !column(line, alias).empty(); alias += 2) {
      if (ascii::equalIgnoringCase(column(line, alias), name)) return nameAliases.codePoint(i);
    }
  }
  return computedCodePoint(name);
}

}  // namespace glyph
