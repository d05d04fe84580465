// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "card.h"
#include "commands.h"
#include "encoding.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/property_names.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/entity/codec.h"
#include "glyphorium/state/structured_unicodes.h"
#include "glyphorium/toolkit/copy_forms.h"
#include "lookup.h"

namespace cli {

namespace {

// Returns an entry for each character that the argument stands for. Its name is the Unicode name or, if the
// character has no name, its label.
std::vector<glyph::RawUnicodeEntity> entriesOf(const std::string& argument) {
  std::vector<glyph::Entity> entities;
  if (auto set = charactersOfSet(argument)) {
    entities = *std::move(set);
  } else {
    for (const Character& character : resolve(argument).characters) entities.push_back(character.front());
  }
  std::vector<glyph::RawUnicodeEntity> entries;
  for (const glyph::Entity& entity : entities) {
    const std::string hex = entity.computed.hex;
    const bool isSequence = hex.find(',') != std::string::npos;
    std::string upper = hex;
    for (char& c : upper) c = c >= 'a' && c <= 'f' ? static_cast<char>(c - ('a' - 'A')) : c;
    entries.push_back({upper,
                       isSequence
                           ? entity.name()
                           : glyph::characterNameOrLabel(static_cast<char32_t>(entity.computed.decimal)),
                       false});
  }
  return entries;
}

}  // namespace

int listNames(Output& output, const std::vector<std::string>& hexCodes, bool json) {
  std::vector<glyph::RawUnicodeEntity> entries;
  int exitCode = found;
  if (hexCodes.empty()) {
    glyph::loadStructuredUnicodes();
    entries = glyph::structuredUnicodes();
  }
  for (const std::string& hex : hexCodes) {
    if (const auto entry = glyph::findName(hex)) {
      entries.push_back({hex, std::string(entry->name), entry->isSFSymbol});
      continue;
    }
    const std::vector<glyph::RawUnicodeEntity> others = entriesOf(hex);
    entries.insert(entries.end(), others.begin(), others.end());
    if (others.empty()) {
      complain("no character is '" + hex + "'; codes are hexadecimal, of four digits or more");
      exitCode = nothingFound;
    }
  }
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const glyph::RawUnicodeEntity& entry : entries) {
    if (json) {
      objects.push_back(glyph::encode(entry));
    } else {
      rows.push_back({output.faint(entry.hex), entry.name});
    }
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  return exitCode;
}

int listValues(Output& output, const std::string& property, bool json) {
  std::vector<std::vector<std::string>> rows;
  if (property == "form") {
    for (const glyph::CopyForm& form : glyph::copyForms()) rows.push_back({std::string(form.identifier)});
  } else if (property == "property") {
    for (const std::string& name : binaryProperties()) rows.push_back({name});
  } else if (property == "field") {
    for (const std::string_view name : fieldsOfFormats()) rows.push_back({std::string(name)});
  } else if (property == "encoding") {
    for (const std::string& name : encodingNames()) rows.push_back({name});
  } else {
    using glyph::CharacterProperty;
    const CharacterProperty kind = property == "block"    ? CharacterProperty::block
                                   : property == "script" ? CharacterProperty::script
                                   : property == "age"    ? CharacterProperty::version
                                                          : CharacterProperty::category;
    for (const std::string_view value : glyph::valuesOf(kind)) {
      std::size_t count = 0;
      for (const auto [first, last] : glyph::charactersWith(kind, value)) count += last - first + 1;
      rows.push_back({std::string(value), std::to_string(count)});
      if (kind == CharacterProperty::category) rows.back().emplace_back(glyph::categoryName(value));
    }
  }
  if (!json) {
    output.printTable(rows);
    return found;
  }
  JsonArray array(output);
  for (const std::vector<std::string>& row : rows) {
    nlohmann::ordered_json object{{"value", row[0]}};
    if (row.size() > 1) object["count"] = std::stoul(row[1]);
    if (row.size() > 2) object["name"] = row[2];
    array.add(object.dump());
  }
  array.end();
  return found;
}

int printTable(Output& output, const std::string& constant, bool json) {
  if (!constant.empty()) {
    const glyph::EmbeddedText* const text = glyph::embeddedText(constant);
    if (text) {
      output.print(text->text);
      return found;
    }
    std::vector<std::string> constants;
    for (const glyph::EmbeddedText& one : glyph::embeddedTexts()) constants.emplace_back(one.constant);
    const std::vector<std::string> names = nearestTexts(constant, constants);
    complain("there is no table '" + constant + "'" +
             (names.empty() ? "; 'glyphorium table' lists them" : "; did you mean '" + names.front() + "'?"));
    return wrongUse;
  }
  std::vector<std::string> objects;
  std::vector<std::vector<std::string>> rows;
  for (const glyph::EmbeddedText& text : glyph::embeddedTexts()) {
    objects.push_back(nlohmann::ordered_json{
        {"name", text.constant}, {"group", text.group}, {"rows", text.rows}, {"bytes", text.text.size()}}
                          .dump());
    rows.push_back({std::string(text.constant), std::string(text.group), std::to_string(text.rows),
                    output.faint(std::to_string(text.text.size()))});
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
  return found;
}

}  // namespace cli
