// SPDX-License-Identifier: MIT
// Names: the lookup beside a plain map of the whole table, name completion, and what a person types.
#include <algorithm>
#include <nlohmann/json.hpp>
#include <string>
#include <unordered_map>

#include "fuzz/fuzzing.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/platform/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace {

using fuzzing::require;

struct Name {
  std::string name;
  bool isSFSymbol;
};

const std::unordered_map<std::string, Name>& table() {
  static const auto* const names = [] {
    auto* const all = new std::unordered_map<std::string, Name>;
    for (const auto& row : nlohmann::json::parse(glyph::structuredUnicodeJSON())) {
      all->try_emplace(row.at("hex"), Name{row.at("name"), row.at("isSFSymbol")});
    }
    return all;
  }();
  return *names;
}

std::string upper(std::string_view text) {
  std::string result(text);
  for (char& c : result) {
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - ('a' - 'A'));
  }
  return result;
}

void tryLookup(std::string_view hex) {
  const auto entry = glyph::findName(hex);
  const auto expected = table().find(upper(hex));
  require(entry.has_value() == (expected != table().end()), "a code is found if the table has it");
  if (!entry) return;
  require(entry->name == expected->second.name, "with its name");
  require(entry->isSFSymbol == expected->second.isSFSymbol, "and its kind");
}

void tryCompletion(const std::vector<std::string_view>& lines) {
  std::vector<glyph::ComputedEntity> records;
  for (const std::string_view line : lines) {
    glyph::ComputedEntity record;
    const std::size_t end = std::min(line.find(' '), line.size());
    record.hex = line.substr(0, end);
    record.fallbackName = line.substr(end);
    records.push_back(std::move(record));
  }
  std::vector<glyph::ComputedEntity> expected;
  for (glyph::ComputedEntity record : records) {
    const auto entry = table().find(upper(record.hex));
    if (entry != table().end()) record.fallbackName = glyph::capitalizedName(entry->second.name);
    const std::string lower = glyph::lowercased(record.fallbackName);
    if (!lower.empty() && lower != "<control>") expected.push_back(std::move(record));
  }
  const auto completed = glyph::toolKit().addNames(std::move(records));
  require(std::equal(completed.begin(), completed.end(), expected.begin(), expected.end(),
                     [](const glyph::ComputedEntity& a, const glyph::ComputedEntity& b) {
                       return a.hex == b.hex && a.fallbackName == b.fallbackName;
                     }),
          "completion takes the table's names, keeps others, and leaves out what has none");
}

void tryTyped(std::string_view text) {
  if (const auto point = cli::codePointOf(text)) {
    require(!glyph::utf8(*point).empty(), "a typed code is a character's");
    const std::string hex = glyph::toolKit().getHex(*point);
    for (const std::string& form : {hex, "U+" + hex, "0X" + hex, "\\u{" + hex + "}", "&#x" + hex + ";",
                                    "&#" + std::to_string(*point) + ";"}) {
      require(cli::codePointOf(form) == point, "and so in every form");
    }
  }
  const std::vector<std::string> names{"arrows", "emoji", "latin basic", "SF Symbols"};
  const auto nearest = cli::nearest(text, names);
  require(nearest.size() <= 3, "few names are suggested");
  for (const std::string& name : nearest) {
    require(std::find(names.begin(), names.end(), name) != names.end(), "of those that there are");
  }
}

// What a person asks for by a character, a code or a name. The catalog is a small one, since every character
// that is not in it costs a reading of the enrichment table.
void tryResolving(std::string_view text) {
  [[maybe_unused]] static const bool filled = [] {
    std::vector<glyph::Entity> entities;
    for (const char* const hex : {"0041", "00e9", "2190", "1f600"}) {
      entities.push_back({glyph::toolKit().addNames({glyph::Unicode(hex).computedEntity()}).front(), {}});
    }
    glyph::glyphorium().allCustomEntities = std::move(entities);
    return true;
  }();
  const std::vector<glyph::Entity> found = cli::resolve(text);
  const auto clusters = glyph::graphemeClusters(text);
  if (clusters.size() == 1) {
    require(found.size() == glyph::codePoints(text).size(),
            "a typed character gives each of its code points");
    return;
  }
  const auto point = cli::codePointOf(text);
  for (const glyph::Entity& entity : found) {
    if (point) {
      require(entity.computed.hex == glyph::toolKit().getHex(*point), "a code gives its character");
    } else {
      require(glyph::lowercased(entity.name()) == glyph::lowercased(text), "a name gives those of that name");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text = fuzzing::input(data, size);
  std::vector<std::string_view> lines;
  for (;;) {
    const std::size_t end = text.find('\n');
    lines.push_back(text.substr(0, end));
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 1);
  }
  for (const std::string_view line : lines) {
    tryLookup(line.substr(0, line.find(' ')));
    tryTyped(line);
  }
  tryCompletion(lines);
  if (lines.size() == 1 && lines.front().size() <= 32) tryResolving(lines.front());
  return 0;
}
