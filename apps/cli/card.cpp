// SPDX-License-Identifier: MIT
#include "card.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "glyphorium/entity/codec.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "unicode_facts.h"

namespace cli {
namespace {

using glyph::ComputedEntity;
using glyph::Entity;

// Prints a label and a value. On a terminal, long values are wrapped and their lines are aligned.
void printLine(Output& output, std::string_view label, std::string_view value) {
  if (value.empty()) return;
  constexpr int indentation = 18;
  std::string column(label);
  column.resize(std::max<std::size_t>(column.size() + 1, indentation - 4), ' ');
  const std::vector<std::string> lines = output.onTerminal()
                                             ? wrapped(value, std::max(output.width() - indentation, 20))
                                             : std::vector{std::string(value)};
  for (const std::string& line : lines) {
    const bool isFirst = &line == &lines.front();
    output.printLine(isFirst ? "    " + output.faint(column) + line : std::string(indentation, ' ') + line);
  }
}

void printForms(Output& output, const Entity& entity, const std::vector<std::string>& groups) {
  const ComputedEntity& record = entity.computed;
  const auto print = [&](std::string_view label, std::string_view value) { printLine(output, label, value); };
  if (entity.additional && entity.additional->htmlNamed) print("HTML", *entity.additional->htmlNamed);
  print("HTML hex", record.htmlHex);
  print("HTML decimal", record.htmlDecimal);
  print("Hex", record.hex);
  print("Decimal", glyph::copyForm("decimal")->text(entity).value_or(std::to_string(record.decimal)));
  print("Swift", glyph::copyForm("swift")->text(entity).value_or(entity.swiftDecimal()));
  print("SwiftUI", glyph::copyForm("swiftui")->text(entity).value_or(""));
  print("UIKit", glyph::copyForm("uikit")->text(entity).value_or(""));
  print(groups.size() > 1 ? "Groups" : "Group", joined(groups, ", "));
  if (entity.additional && entity.additional->searchTerms) {
    print("Found by", joined(*entity.additional->searchTerms, ", "));
  }
}

}  // namespace

void printEntities(Output& output, const std::vector<const Entity*>& entities, const Listing& listing) {
  if (!listing.isTable()) {
    printListing(output, entities, listing);
    return;
  }
  std::vector<std::vector<std::string>> rows;
  for (const Entity* entity : entities) {
    const bool named = entity->additional && entity->additional->htmlNamed;
    rows.push_back({output.accent(visibleSymbol(entity->computed.symbol)), output.faint(entity->computed.hex),
                    entity->name(), output.faint(named ? *entity->additional->htmlNamed : "")});
  }
  output.printTable(rows);
}

void printCard(Output& output, const std::vector<Entity>& entities) {
  const Entity& entity = entities.front();
  std::vector<std::string> groups;
  for (const Entity& one : entities) {
    if (!one.computed.group.empty()) groups.push_back(one.computed.group);
  }
  const std::string name = entity.name();
  const std::string code = glyph::copyForm("code-point")->text(entity).value_or(entity.computed.hex);
  output.printLine("  " + output.accent(visibleSymbol(entity.computed.symbol)) + "  " + output.strong(name) +
                   "  " + output.faint(code));
  if (name != entity.computed.fallbackName && !entity.computed.fallbackName.empty()) {
    output.printLine("    " + output.faint("in Unicode: " + entity.computed.fallbackName));
  }
  printForms(output, entity, groups);
  output.printLine();
  for (const auto& [label, value] : unicodeLines(entity)) printLine(output, label, value);
  if (const auto note = entity.usageNote()) {
    output.printLine();
    for (const std::string& line : wrapped(*note, std::min(output.width(), 84) - 4)) {
      output.printLine(line.empty() ? "" : "    " + line);
    }
  }
}

std::string entityJson(const Entity& entity) {
  using Json = nlohmann::ordered_json;
  Json json = Json::parse(glyph::encode(entity.computed));
  json["name"] = entity.name();
  if (const auto note = entity.usageNote()) json["note"] = *note;
  if (entity.additional) json["additional"] = Json::parse(glyph::encode(*entity.additional));
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

std::string cardJson(const Entity& entity) {
  using Json = nlohmann::ordered_json;
  Json json = Json::parse(entityJson(entity));
  json["unicode"] = unicodeJson(entity);
  return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

void printJsonArray(Output& output, const std::vector<std::string>& objects) {
  JsonArray array(output);
  for (const std::string& object : objects) array.add(object);
  array.end();
}

void JsonArray::add(const std::string& object) {
  output_.print(empty_ ? "[" : ",\n ");
  output_.print(output_.onTerminal() ? escapedJson(object) : object);
  empty_ = false;
}

void JsonArray::end() {
  output_.printLine(empty_ ? "[]" : "]");
}

}  // namespace cli
