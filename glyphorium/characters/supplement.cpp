// SPDX-License-Identifier: MIT
#include "glyphorium/characters/supplement.h"

#include <unordered_set>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/data/name_table_lines.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Changes the first letter of each word to upper case. Except for proper names, the words of an emoji's name
// are in lower case. They may contain letters that are not ASCII. An elided article ("d’Ivoire") stays
// unchanged.
std::string capitalizedEmojiName(std::string_view name) {
  std::string result(name);
  bool atBegin = true;
  for (std::size_t i = 0; i < result.size(); ++i) {
    if (atBegin && !name.substr(i + 1).starts_with("’")) result[i] = ascii::raised(result[i]);
    atBegin = result[i] == ' ' || result[i] == '-' || result[i] == '(';
  }
  return result;
}

std::string hexListOf(std::string_view text) {
  std::vector<std::string> codes;
  for (const char32_t point : codePoints(text)) codes.push_back(CodeFormats().getHex(point));
  return joined(codes, ",");
}

std::string nameOfCodePoint(char32_t codePoint) {
  if (const std::string name = characterName(codePoint); !name.empty()) {
    std::string shown = capitalizedName(name);
    // In a name that ends with the code point ("CJK UNIFIED IDEOGRAPH-6F22"), the digits of the code point
    // stay in upper case.
    const std::size_t code = name.rfind('-') + 1;
    if (code > 0 && ascii::number(std::string_view(name).substr(code), 16) == codePoint)
      shown.replace(code, std::string::npos, name, code);
    return shown;
  }
  const std::string_view alias = column(nameAliases.find(codePoint).value_or(""), 1);
  return alias.empty() ? characterNameOrLabel(codePoint) : capitalizedName(alias);
}

std::unordered_set<char32_t> codePointsOfCatalog() {
  std::unordered_set<char32_t> points;
  for (std::size_t place = 0; place < preparedRowCount(); ++place)
    points.insert(preparedRow(place).codePoint);
  return points;
}

}  // namespace

std::string shownCharacterName(std::string_view text) {
  const auto key = characterKey(text);
  if (!key) return {};
  return *key < firstEmojiNumber ? nameOfCodePoint(*key)
                                 : capitalizedEmojiName(annotationOf(text, "en").name);
}

Entity supplementEntity(std::string_view text) {
  const std::string hexList = hexListOf(text);
  Entity entity = Unicode(hexList).computedEntity().generateEntity();
  entity.computed.fallbackName = shownCharacterName(text);
  // Unicode::computedEntity() computes the code forms for a single code point only.
  if (const std::u32string points = codePoints(text); points.size() > 1) {
    const CodeFormats formats;
    entity.computed.decimal = points.front();
    entity.computed.htmlHex = formats.getAdvancedHtmlHex(hexList);
    entity.computed.htmlDecimal = formats.getAdvancedHtmlDecimal(formats.getAdvancedDecimal(hexList));
    entity.computed.symbol = std::string(text);
  }
  return entity;
}

Entity supplementEntity(char32_t codePoint) {
  Entity entity = Unicode(CodeFormats().getHex(codePoint)).computedEntity().generateEntity();
  entity.computed.fallbackName = nameOfCodePoint(codePoint);
  return entity;
}

Entity withSupplementName(Entity entity) {
  // The name table of Unicode 13.0 has labels such as "<CJK Ideograph, First>" for the first and last code
  // points of ranges.
  const std::string name = entity.name();
  if (name.empty() || name.starts_with('<'))
    entity.computed.fallbackName = shownCharacterName(entity.computed.symbol);
  return entity;
}

std::vector<std::string> supplementTexts() {
  std::vector<std::string> texts;
  for (std::size_t place = 0; place < emojiCount(); ++place) {
    if (emojiAt(place).kind != "single") texts.emplace_back(emojiAt(place).text);
  }
  std::unordered_set<char32_t> known = codePointsOfCatalog();
  const auto add = [&](char32_t codePoint) {
    if (known.insert(codePoint).second) texts.push_back(utf8(codePoint));
  };
  for (auto line = nameTableLine(firstNameTableLine); line; line = nameTableLine(line->next)) {
    // Leave out the labels that the table has for the first and last code points of ranges.
    if (!line->entry.name.starts_with('<') && characterStatus(line->codePoint) == CharacterStatus::assigned)
      add(line->codePoint);
  }
  for (std::size_t i = 0; i < laterNames.size(); ++i) add(laterNames.codePoint(i));
  for (std::size_t i = 0; i < hanReadings.size(); ++i) {
    if (!column(hanReadings.line(i), 0).empty()) add(hanReadings.codePoint(i));
  }
  return texts;
}

}  // namespace glyph
