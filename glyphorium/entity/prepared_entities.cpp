// SPDX-License-Identifier: MIT
#include "glyphorium/entity/prepared_entities.h"

#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/entity/entity_list.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

ComputedEntity computedEntity(const PreparedRow& row) {
  const char* at = preparedTexts.data() + row.texts;
  const auto next = [&at](std::size_t size) {
    const std::string_view text(at, size);
    at += size + 1;
    return RecordText::ofConstant(text);
  };
  // The elements between braces are evaluated from left to right, which is the order in which the texts are
  // stored.
  return {next(row.hexSize),
          row.codePoint,
          next(row.htmlHexSize),
          next(row.htmlDecimalSize),
          next(row.symbolSize),
          next(row.nameSize),
          RecordText::ofConstant(embeddedTexts()[row.table].group),
          row.isSFSymbol ? std::optional(true) : std::nullopt};
}

AdditionalData enrichment(std::size_t number) {
  PreparedEnrichmentReader reader(number);
  const auto text = [&reader] { return RecordText::ofConstant(reader.text()); };
  AdditionalData data;
  data.needsSerifs = reader.number() != 0;
  const std::size_t terms = reader.number();
  const std::size_t notes = reader.number();
  data.hex = text();
  data.betterName = text();
  data.htmlNamed = text();
  data.imageName = text();
  data.searchTerms.emplace().reserve(terms);
  while (data.searchTerms->size() < terms) data.searchTerms->push_back(text());
  data.advice.reserve(notes);
  while (data.advice.size() < notes) {
    data.advice.emplace_back().lang = text();
    data.advice.back().text = text();
  }
  return data;
}

const std::vector<AdditionalData>& enrichments() {
  static NeverDestroyed<const std::vector<AdditionalData>> all([] {
    std::vector<AdditionalData> rows;
    rows.reserve(preparedEnrichmentCount());
    while (rows.size() < preparedEnrichmentCount()) rows.push_back(enrichment(rows.size()));
    return rows;
  }());
  return *all;
}

}  // namespace

const std::vector<Entity>& preparedEntities() {
  static NeverDestroyed<const std::vector<Entity>> all([] {
    const std::vector<AdditionalData>& shared = enrichments();
    std::vector<Entity> entities = entityListFor(preparedRowCount());
    for (std::size_t place = 0; place < preparedRowCount(); ++place) {
      const PreparedRow row = preparedRow(place);
      using Additional = BoxedOptional<AdditionalData>;
      entities.push_back({computedEntity(row), row.enrichment != 0
                                                   ? Additional::ofConstant(shared[row.enrichment - 1u])
                                                   : Additional()});
    }
    return entities;
  }());
  return *all;
}

std::optional<Entity> preparedEntity(std::size_t place) {
  if (place >= preparedRowCount()) return std::nullopt;
  const PreparedRow row = preparedRow(place);
  Entity entity{computedEntity(row), std::nullopt};
  if (row.enrichment != 0) entity.additional = enrichment(row.enrichment - 1u);
  return entity;
}

std::string preparedName(std::size_t place) {
  if (place >= preparedRowCount()) return {};
  const PreparedRow row = preparedRow(place);
  if (row.enrichment != 0) return preparedEntity(place)->name();
  // Four texts are stored before the name. A zero byte ends each of them.
  const std::size_t before = row.hexSize + row.htmlHexSize + row.htmlDecimalSize + row.symbolSize + 4u;
  return std::string(preparedTexts.substr(row.texts + before, row.nameSize));
}

std::optional<AdditionalData> preparedEnrichmentOf(std::string_view hex) {
  const auto codePoint = ascii::number(hex, 16);
  const auto number = codePoint ? findPreparedEnrichment(*codePoint) : std::nullopt;
  if (!number) return std::nullopt;
  AdditionalData data = enrichment(*number);
  return data.hex == hex ? std::optional(std::move(data)) : std::nullopt;
}

}  // namespace glyph
