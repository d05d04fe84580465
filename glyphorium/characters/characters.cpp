// SPDX-License-Identifier: MIT
#include "glyphorium/characters/characters.h"

#include <algorithm>

#include "glyphorium/characters/hangul.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/property_names.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

enum PropertyColumn : std::size_t {
  versionColumn = 1,
  categoryColumn,
  scriptColumn,
  bidiColumn,
  widthColumn,
  classColumn
};

// Returns the line of the range that contains the code point. Empty if no range contains it.
std::string_view lineOfRange(const CodePointTexts& ranges, char32_t codePoint) noexcept {
  const auto position = ranges.positionUpTo(codePoint);
  if (!position) return {};
  const std::string_view line = ranges.line(*position);
  return codePoint <= ascii::number(column(line, 0), 16) ? line : std::string_view();
}

void readDecomposition(CharacterFacts& facts) {
  if (isHangulSyllable(facts.codePoint)) {
    facts.decompositionKind = "canonical";
    facts.decomposition = hangulDecomposition(facts.codePoint);
  } else if (const auto line = decompositions.find(facts.codePoint)) {
    facts.decompositionKind = column(*line, 0);
    facts.decomposition = codePoints(column(*line, 1));
  }
}

void readCaseMappings(CharacterFacts& facts) {
  const auto line = caseMappings.find(facts.codePoint);
  if (!line) return;
  facts.upperCase = codePoints(column(*line, 0));
  facts.lowerCase = codePoints(column(*line, 1));
  facts.titleCase = codePoints(column(*line, 2));
}

void readRemarks(CharacterFacts& facts) {
  const std::string_view aliases = nameAliases.find(facts.codePoint).value_or("");
  for (std::size_t i = 1; !column(aliases, i).empty(); i += 2)
    facts.formalAliases.emplace_back(column(aliases, i));
  const std::string line = remarks.find(facts.codePoint);
  for (std::size_t i = 0; !column(line, i).empty(); i += 2) {
    if (column(line, i) == "alias") facts.otherNames.emplace_back(column(line, i + 1));
    if (column(line, i) == "comment") facts.comments.emplace_back(column(line, i + 1));
  }
}

void readHan(CharacterFacts& facts) {
  const std::string line = hanReadings.find(facts.codePoint);
  facts.hanDefinition = column(line, 0);
  facts.mandarin = column(line, 1);
  facts.japaneseOn = column(line, 2);
  facts.japaneseKun = column(line, 3);
  facts.korean = column(line, 4);
}

// Returns the letters and digits of the text in lower case, without all its other characters.
std::string loose(std::string_view text) {
  std::string result;
  for (const char c : text) {
    if (ascii::isAlphanumeric(c) || c == '.') result += ascii::lowered(c);
  }
  return result;
}

bool hasValue(CharacterProperty property, std::string_view line, const std::string& wanted) {
  switch (property) {
    case CharacterProperty::block:
      return loose(column(line, 1)) == wanted;
    case CharacterProperty::script:
      return loose(column(line, scriptColumn)) == wanted;
    case CharacterProperty::version: {
      const std::string version = loose(column(line, versionColumn));
      return version == wanted || version == wanted + ".0";
    }
    case CharacterProperty::category: {
      const std::string category = loose(column(line, categoryColumn));
      return category == wanted || (wanted.size() == 1 && category.starts_with(wanted)) ||
             loose(categoryName(column(line, categoryColumn))) == wanted;
    }
  }
  return false;
}

CodePointRange rangeAt(const CodePointTexts& ranges, std::size_t position) {
  const auto last = ascii::number(column(ranges.line(position), 0), 16);
  return {ranges.codePoint(position), static_cast<char32_t>(last.value_or(0))};
}

}  // namespace

CharacterStatus characterStatus(char32_t codePoint) noexcept {
  if (codePoint > 0x10FFFF) return CharacterStatus::none;
  if ((codePoint >= 0xFDD0 && codePoint <= 0xFDEF) || (codePoint & 0xFFFE) == 0xFFFE)
    return CharacterStatus::noncharacter;
  const std::string_view category = characterCategory(codePoint);
  if (category == "Cc") return CharacterStatus::control;
  if (category == "Co") return CharacterStatus::privateUse;
  if (category == "Cs") return CharacterStatus::surrogate;
  return category == "Cn" ? CharacterStatus::unassigned : CharacterStatus::assigned;
}

std::string_view characterCategory(char32_t codePoint) noexcept {
  if (codePoint > 0x10FFFF) return {};
  const std::string_view line = lineOfRange(propertyRanges, codePoint);
  return line.empty() ? "Cn" : column(line, categoryColumn);
}

CharacterFacts characterFacts(char32_t codePoint) {
  CharacterFacts facts;
  facts.codePoint = codePoint;
  facts.status = characterStatus(codePoint);
  if (facts.status == CharacterStatus::none) return facts;
  facts.name = characterName(codePoint);
  facts.label = characterNameOrLabel(codePoint);
  facts.category = characterCategory(codePoint);
  facts.block = column(lineOfRange(blockRanges, codePoint), 1);
  const std::string_view properties = lineOfRange(propertyRanges, codePoint);
  facts.version = column(properties, versionColumn);
  facts.script = column(properties, scriptColumn);
  facts.bidirectionalClass = column(properties, bidiColumn);
  facts.eastAsianWidth = column(properties, widthColumn);
  if (const auto number = ascii::number(column(properties, classColumn), 10))
    facts.combiningClass = static_cast<int>(*number);
  facts.numericValue = numericValues.find(codePoint).value_or("");
  readDecomposition(facts);
  readCaseMappings(facts);
  readRemarks(facts);
  readHan(facts);
  return facts;
}

std::vector<CodePointRange> charactersWith(CharacterProperty property, std::string_view value) {
  std::vector<CodePointRange> found;
  const std::string wanted = loose(value);
  if (wanted.empty()) return found;
  if (property == CharacterProperty::block) {
    for (std::size_t block = 0; block < blockRanges.size(); ++block) {
      if (!hasValue(property, blockRanges.line(block), wanted)) continue;
      const CodePointRange whole = rangeAt(blockRanges, block);
      for (std::size_t i = propertyRanges.positionUpTo(whole.first).value_or(0);
           i < propertyRanges.size() && propertyRanges.codePoint(i) <= whole.last; ++i) {
        const CodePointRange range = rangeAt(propertyRanges, i);
        if (range.last < whole.first) continue;
        found.push_back({std::max(range.first, whole.first), std::min(range.last, whole.last)});
      }
    }
    return found;
  }
  for (std::size_t i = 0; i < propertyRanges.size(); ++i) {
    if (hasValue(property, propertyRanges.line(i), wanted)) found.push_back(rangeAt(propertyRanges, i));
  }
  return found;
}

std::vector<std::string_view> valuesOf(CharacterProperty property) {
  std::vector<std::string_view> values;
  if (property == CharacterProperty::block) {
    for (std::size_t i = 0; i < blockRanges.size(); ++i) values.push_back(column(blockRanges.line(i), 1));
    return values;
  }
  const std::size_t number = property == CharacterProperty::script     ? scriptColumn
                             : property == CharacterProperty::category ? categoryColumn
                                                                       : versionColumn;
  for (std::size_t i = 0; i < propertyRanges.size(); ++i)
    values.push_back(column(propertyRanges.line(i), number));
  std::sort(values.begin(), values.end());
  values.erase(std::unique(values.begin(), values.end()), values.end());
  if (property == CharacterProperty::version) {
    std::stable_sort(values.begin(), values.end(), [](std::string_view a, std::string_view b) {
      return a.find('.') != b.find('.') ? a.find('.') < b.find('.') : a < b;
    });
  }
  return values;
}

}  // namespace glyph
