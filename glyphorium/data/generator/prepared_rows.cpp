// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/prepared_rows.h"

#include <algorithm>
#include <limits>
#include <map>
#include <numeric>

#include "glyphorium/data/prepared_rows.h"

namespace glyph::generator {
namespace {

template <class T>
void append(const T& value, std::string& bytes) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

template <class Integer>
Integer fitting(std::size_t number, char32_t codePoint) {
  if (number > std::numeric_limits<Integer>::max())
    throw SourceError("prepared rows: error: a number of " + hexText(codePoint) + " is too large");
  return static_cast<Integer>(number);
}

}  // namespace

PreparedRows prepareRows(const std::vector<GroupTable>& tables, const NameTable& names,
                         const EnrichmentTable& enrichment) {
  std::map<char32_t, std::size_t> enrichments;
  for (const auto& [codePoint, offset] : enrichment.index) enrichments.emplace(codePoint, enrichments.size());

  PreparedRows prepared;
  std::map<char32_t, PreparedRow> firstRows;  // rows with the same code point share their texts
  std::vector<char32_t> codePoints;
  for (std::size_t table = 0; table < tables.size(); ++table) {
    if (!tables[table].configured) continue;
    for (const char32_t codePoint : tables[table].members) {
      const auto [place, isNew] = firstRows.try_emplace(codePoint);
      PreparedRow& row = place->second;
      if (isNew) {
        const RowTexts texts = rowTexts(codePoint, names);
        row.codePoint = codePoint & 0x1FFFFFu;
        row.texts = fitting<std::uint32_t>(prepared.texts.size(), codePoint);
        const auto add = [&](const std::string& text) {
          prepared.texts.append(text.c_str(), text.size() + 1);
          return fitting<std::uint8_t>(text.size(), codePoint);
        };
        row.hexSize = add(texts.hex);
        row.htmlHexSize = add(texts.htmlHex);
        row.htmlDecimalSize = add(texts.htmlDecimal);
        row.symbolSize = add(texts.symbol);
        row.nameSize = add(texts.fallbackName);
        const auto enriched = enrichments.find(codePoint);
        row.enrichment =
            enriched == enrichments.end() ? 0 : fitting<std::uint16_t>(enriched->second + 1, codePoint);
      }
      row.table = fitting<std::uint8_t>(table, codePoint);
      row.isSFSymbol = tables[table].isSFSymbols;
      append(row, prepared.rows);
      codePoints.push_back(codePoint);
    }
  }

  fitting<std::uint16_t>(codePoints.size(), codePoints.back());
  std::vector<std::uint16_t> order(codePoints.size());
  std::iota(order.begin(), order.end(), std::uint16_t{0});
  std::stable_sort(order.begin(), order.end(),
                   [&](std::uint16_t a, std::uint16_t b) { return codePoints[a] < codePoints[b]; });
  for (const std::uint16_t place : order) append(place, prepared.order);
  return prepared;
}

}  // namespace glyph::generator
