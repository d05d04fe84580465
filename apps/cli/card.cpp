// SPDX-License-Identifier: MIT
#include "card.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "glyphorium/entity/codec.h"
#include "glyphorium/toolkit/copy_forms.h"

namespace cli {
namespace {

using glyph::ComputedEntity;
using glyph::Entity;

void printForms(Output& output, const Entity& entity, const std::vector<std::string>& groups) {
  const ComputedEntity& record = entity.computed;
  const auto print = [&](std::string_view label, std::string_view value) {
    if (value.empty()) return;
    std::string column(label);
    column.resize(14, ' ');
    output.printLine("    " + output.faint(column) + std::string(value));
  };
  if (entity.additional && entity.additional->htmlNamed) print("HTML", *entity.additional->htmlNamed);
  print("HTML hex", record.htmlHex);
  print("HTML decimal", record.htmlDecimal);
  print("Hex", record.hex);
  print("Decimal", std::to_string(record.decimal));
  print("Swift", entity.swiftDecimal());
  print("SwiftUI", glyph::copyForm("swiftui")->text(entity).value_or(""));
  print("UIKit", glyph::copyForm("uikit")->text(entity).value_or(""));
  print(groups.size() > 1 ? "Groups" : "Group", joined(groups, ", "));
  if (entity.additional && entity.additional->searchTerms) {
    print("Found by", joined(*entity.additional->searchTerms, ", "));
  }
}

}  // namespace

void printEntities(Output& output, const std::vector<const Entity*>& entities, bool json) {
  if (json) {
    std::vector<std::string> objects;
    for (const Entity* entity : entities) objects.push_back(entityJson(*entity));
    printJsonArray(output, objects);
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
  const std::string name = entity.name().empty() ? "(not in the Unicode 13.0 name table)" : entity.name();
  const std::string code = glyph::copyForm("code-point")->text(entity).value_or(entity.computed.hex);
  output.printLine("  " + output.accent(visibleSymbol(entity.computed.symbol)) + "  " + output.strong(name) +
                   "  " + output.faint(code));
  if (name != entity.computed.fallbackName && !entity.computed.fallbackName.empty()) {
    output.printLine("    " + output.faint("in Unicode: " + entity.computed.fallbackName));
  }
  printForms(output, entity, groups);
  if (const auto note = entity.additional ? entity.additional->localizedAdvice() : std::nullopt) {
    output.printLine();
    for (const std::string& line : wrapped(*note, std::min(terminalWidth(), 84) - 4)) {
      output.printLine(line.empty() ? "" : "    " + line);
    }
  }
}

std::string entityJson(const Entity& entity) {
  using Json = nlohmann::ordered_json;
  Json json = Json::parse(glyph::encode(entity.computed));
  json["name"] = entity.name();
  if (entity.additional) json["additional"] = Json::parse(glyph::encode(*entity.additional));
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
