// SPDX-License-Identifier: MIT
#include "glyphorium/search/index_building.h"

#include <string>
#include <string_view>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index_builder.h"
#include "glyphorium/search/letter_description.h"
#include "glyphorium/search/static_rank.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

void addEnrichment(IndexBuilder& builder, const Entity& entity) {
  const AdditionalData& data = *entity.additional;
  if (data.betterName && !data.betterName->empty())
    builder.addText(PhraseKind::replacedName, "", entity.computed.fallbackName);
  if (data.htmlNamed) builder.addText(PhraseKind::htmlName, "", *data.htmlNamed);
  if (data.searchTerms) {
    for (const RecordText& term : *data.searchTerms) builder.addText(PhraseKind::searchTerm, "", term);
  }
  for (const AdditionalDataAdvice& advice : data.advice)
    builder.addText(PhraseKind::note, advice.lang, advice.text);
}

}  // namespace

void addName(IndexBuilder& builder, std::string_view name) {
  builder.addText(PhraseKind::name, "", name);
  if (name.find(" Small Letter ") != std::string_view::npos)
    builder.addText(PhraseKind::informalName, "", letterWords(name));
  if (const std::string look = letterLook(name); !look.empty())
    builder.addText(PhraseKind::informalName, "", look);
}

void addRemarks(IndexBuilder& builder, std::uint32_t codePoint) {
  const std::string known = remarks.find(codePoint);
  for (std::size_t i = 0; !column(known, i).empty(); i += 2) {
    const std::string_view kind = column(known, i);
    if (kind == "alias") builder.addText(PhraseKind::informalName, "en", column(known, i + 1));
    if (kind == "comment") builder.addText(PhraseKind::comment, "en", column(known, i + 1));
  }
}

void addOtherNames(IndexBuilder& builder, std::uint32_t codePoint) {
  const std::string_view aliases = nameAliases.find(codePoint).value_or("");
  for (std::size_t i = 1; !column(aliases, i).empty(); i += 2)
    builder.addText(PhraseKind::alias, "", column(aliases, i));
  for (std::size_t list = 0; list < searchFactCount; ++list) {
    const SearchFacts& facts = searchFactList[list];
    if (facts.kind == SearchFactKind::mostWanted) continue;
    std::string_view texts = facts.textsOf(codePoint);
    while (!texts.empty()) {
      const std::string_view text = takePart(texts, '\n');
      const bool isHtmlName = facts.kind == SearchFactKind::htmlName;
      if (isHtmlName) builder.addHtmlName(text);
      if (text.empty()) continue;
      builder.addText(isHtmlName ? PhraseKind::htmlName : PhraseKind::everydayName, facts.language, text);
    }
  }
}

void addAnnotations(IndexBuilder& builder, std::string_view text) {
  for (const SearchLanguage& language : searchLanguages) {
    const CharacterAnnotation annotation = annotationOf(text, language.code);
    if (!annotation.name.empty())
      builder.addText(PhraseKind::textToSpeechName, language.code, annotation.name);
    for (const std::string& keyword : annotation.keywords)
      builder.addText(PhraseKind::keyword, language.code, keyword);
  }
}

IndexImage buildIndex(std::span<const Entity> entities, ShownNames shownNames) {
  const RankedDocs ranked = rankDocs(entities);
  IndexBuilder builder(IndexBuilder::Form::phrases);
  std::vector<std::uint32_t> docOfEntity(entities.size());
  for (const RankedDoc& doc : ranked.docs) {
    const Entity& entity = entities[doc.entity];
    docOfEntity[doc.entity] = builder.addDoc(doc.entity, doc.codePoint, doc.prior);
    const std::string name = entity.name();
    if (shownNames == ShownNames::stored) builder.addShownName(name);
    addName(builder, name);
    if (entity.additional) addEnrichment(builder, entity);
    if (doc.codePoint == Index::noCodePoint) continue;
    addRemarks(builder, doc.codePoint);
    addOtherNames(builder, doc.codePoint);
    addAnnotations(builder, utf8(doc.codePoint));
  }
  for (const GroupMembers& members : ranked.groups) {
    std::vector<std::uint32_t> docs;
    for (const std::uint32_t entity : members.entities) docs.push_back(docOfEntity[entity]);
    builder.addGroup(members.name, docs);
  }
  return std::move(builder).image();
}

}  // namespace glyph::search
