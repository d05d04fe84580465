// SPDX-License-Identifier: MIT
#include "glyphorium/characters/related.h"

#include "glyphorium/characters/characters.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

std::u32string crossReferences(char32_t codePoint) {
  std::u32string references;
  const std::string line = remarks.find(codePoint);
  for (std::size_t i = 0; !column(line, i).empty(); i += 2) {
    if (column(line, i) == "see") references += codePoints(column(line, i + 1));
  }
  return references;
}

}  // namespace

std::string_view relationName(Relation relation) noexcept {
  switch (relation) {
    case Relation::upperCase:
      return "upper case";
    case Relation::lowerCase:
      return "lower case";
    case Relation::titleCase:
      return "title case";
    case Relation::base:
      return "without a mark";
    case Relation::withMark:
      return "with a mark";
    case Relation::mirrorImage:
      return "mirror image";
    case Relation::standsFor:
      return "stands for";
    case Relation::compatibilityForm:
      return "other forms";
    case Relation::seeAlso:
      return "see also";
  }
  return {};
}

std::vector<RelatedCharacters> relatedCharacters(char32_t codePoint) {
  std::vector<RelatedCharacters> related;
  const auto add = [&](Relation relation, std::u32string characters) {
    std::erase(characters, codePoint);
    if (!characters.empty()) related.push_back({relation, std::move(characters)});
  };
  const auto addOne = [&](Relation relation, const std::u32string& mapping) {
    if (mapping.size() == 1) add(relation, mapping);
  };
  const CharacterFacts facts = characterFacts(codePoint);
  addOne(Relation::upperCase, facts.upperCase);
  addOne(Relation::lowerCase, facts.lowerCase);
  if (facts.titleCase != facts.upperCase) addOne(Relation::titleCase, facts.titleCase);
  const bool isCanonical = facts.decompositionKind == "canonical";
  if (isCanonical) add(Relation::base, facts.decomposition.substr(0, 1));
  const std::string_view line = composites.find(codePoint).value_or("");
  add(Relation::withMark, codePoints(column(line, 0)));
  add(Relation::mirrorImage, codePoints(mirrorImages.find(codePoint).value_or("")));
  if (!isCanonical) addOne(Relation::standsFor, facts.decomposition);
  add(Relation::compatibilityForm, codePoints(column(line, 1)));
  add(Relation::seeAlso, crossReferences(codePoint));
  return related;
}

LookAlikes lookAlikes(char32_t codePoint) {
  LookAlikes found;
  const auto line = lookAlikeClasses.find(codePoint);
  if (!line) return found;
  found.characters = codePoints(column(*line, 1));
  std::erase(found.characters, codePoint);
  if (codePoints(column(*line, 0)).size() > 1) found.text = column(*line, 0);
  return found;
}

}  // namespace glyph
