// SPDX-License-Identifier: MIT
#include "glyphorium/search/search.h"

#include <iostream>
#include <iterator>
#include <nlohmann/json.hpp>
#include <unordered_map>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using glyph::Entity;

// The name with what the query matched of it made strong.
std::string highlighted(const Output& output, const std::string& name, const glyph::SearchResult& result) {
  std::string text;
  std::size_t at = 0;
  for (const glyph::SearchRange& range : result.nameRanges) {
    text +=
        name.substr(at, range.begin - at) + output.strong(name.substr(range.begin, range.end - range.begin));
    at = range.end;
  }
  return text + name.substr(at);
}

// The catalog's name of every code point that it holds; the name table knows the others.
class Names {
 public:
  Names() {
    glyph::glyphorium().configure();
    for (const Entity& entity : glyph::glyphorium().buildInEntities())
      names_.try_emplace(entity.computed.hex, entity.name());
  }
  std::string of(const std::string& hex) const {
    if (const auto found = names_.find(hex); found != names_.end()) return found->second;
    const auto entry = glyph::findName(hex);
    return entry ? glyph::capitalizedName(entry->name) : "(not in the Unicode 13.0 name table)";
  }

 private:
  std::unordered_map<std::string, std::string> names_;
};

}  // namespace

int searchCatalog(Output& output, const SearchRequest& request, bool json) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  const std::vector<Entity>& displayed = glyph::selectedEntities();
  const std::vector<Entity>& custom = catalog.allCustomEntities;
  std::vector<Entity>
      whole;  // only where the user has added characters: copying the catalog costs a tenth of it all
  if (!request.displayed && !custom.empty()) {
    whole = custom;
    whole.insert(whole.end(), catalog.buildInEntities().begin(), catalog.buildInEntities().end());
  }
  const std::vector<Entity>& entities = request.displayed ? displayed
                                        : custom.empty()  ? catalog.buildInEntities()
                                                          : whole;
  glyph::SearchOptions options;
  options.limit = static_cast<std::size_t>(request.limit);
  for (const std::string& name : request.groups) {
    const auto group = groupNamed(name);
    if (!group) {
      complain(unknownGroup(name));
      return wrongUse;
    }
    options.groups.push_back(*group);
  }
  const std::string query = joined(request.words, " ");

  const glyph::SearchResults found = glyph::Search(entities).query(query, options);
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const glyph::SearchResult& result : found.results) {
    const Entity& entity = entities[result.index];
    if (json) {
      objects.push_back(entityJson(entity));
      continue;
    }
    rows.push_back({output.accent(visibleSymbol(entity.computed)), output.faint(entity.computed.hex),
                    highlighted(output, entity.name(), result), output.faint(entity.computed.group)});
  }
  if (found.results.empty()) {
    if (json) printJsonArray(output, {});
    complain("nothing found for '" + query + "'");
    return nothingFound;
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  if (output.onTerminal() && !json && found.total > found.results.size()) {
    output.printLine(output.faint(std::to_string(found.results.size()) + " of " +
                                  std::to_string(found.total) + "; --limit shows more"));
  }
  if (!request.copy) return cli::found;
  return copyCharacter(output, "U+" + entities[found.results.front().index].computed.hex, copyForms().front(),
                       false);
}

int identifyText(Output& output, const std::vector<std::string>& texts, bool json) {
  std::string text;
  for (const std::string& one : texts) {
    if (!text.empty()) text += ' ';
    text += one == "-" ? std::string(std::istreambuf_iterator<char>(std::cin), {}) : one;
  }
  if (!glyph::isWellFormedUtf8(text)) {
    complain("the text is not UTF-8; 'iconv' converts other encodings");
    return wrongUse;
  }
  const Names names;
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const std::string_view cluster : glyph::graphemeClusters(text)) {
    const std::u32string points = glyph::codePoints(cluster);
    // A character of several code points stands before its parts, which are set in.
    if (points.size() > 1 && cluster != "\r\n") {
      rows.push_back(
          {output.accent(cluster), output.faint(std::to_string(points.size()) + " code points"), ""});
    }
    for (const char32_t point : points) {
      const glyph::ComputedEntity record = glyph::Unicode(glyph::toolKit().getHex(point)).computedEntity();
      const std::string name = names.of(record.hex);
      if (json) {
        objects.push_back(nlohmann::ordered_json{
            {"hex", record.hex}, {"symbol", record.symbol}, {"name", name}, {"cluster", std::string(cluster)}}
                              .dump());
      }
      const char* const indent = points.size() > 1 && cluster != "\r\n" ? "  " : "";
      rows.push_back({indent + output.accent(visibleSymbol(record)), output.faint(record.hex), name});
    }
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  return rows.empty() ? nothingFound : found;
}

}  // namespace cli
