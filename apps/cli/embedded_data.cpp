// SPDX-License-Identifier: MIT
#include <nlohmann/json.hpp>

#include "card.h"
#include "commands.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/entity/codec.h"
#include "glyphorium/state/structured_unicodes.h"
#include "lookup.h"

namespace cli {

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
    } else {
      complain("the name table has no entry '" + hex + "'; codes are hexadecimal, of four digits or more");
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
