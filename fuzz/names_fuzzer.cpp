// SPDX-License-Identifier: MIT
// Compares name completion with a plain look-up of the hex code in the decoded name table. Each line of the
// input is a record: its hex code, a space and its name. If the name ends with "!", the record gets the group
// "Private Use Area".
#include <algorithm>
#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "fuzz/require.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/structured_unicodes.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace {

using fuzzing::require;
using Records = std::vector<glyph::ComputedEntity>;

const glyph::RawUnicodeEntity* entryOf(std::string_view hex) {
  static const auto* const entries = [] {
    glyph::loadStructuredUnicodes();
    auto* const map = new std::unordered_map<std::string, const glyph::RawUnicodeEntity*>;
    for (const auto& entry : glyph::structuredUnicodes())
      map->try_emplace(glyph::lowercased(entry.hex), &entry);
    return map;
  }();
  const auto found = entries->find(glyph::lowercased(hex));
  return found == entries->end() ? nullptr : found->second;
}

Records recordsOf(std::string_view text) {
  Records records;
  while (!text.empty()) {
    const std::string_view line = text.substr(0, text.find('\n'));
    text.remove_prefix(std::min(line.size() + 1, text.size()));
    glyph::ComputedEntity& record = records.emplace_back();
    record.hex = line.substr(0, line.find(' '));
    record.fallbackName = line.substr(std::min(record.hex.size() + 1, line.size()));
    if (record.fallbackName.ends_with('!')) record.group = "Private Use Area";
  }
  return records;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const Records given = recordsOf({reinterpret_cast<const char*>(data), size});
  const Records named = glyph::toolKit().addNames(given);
  auto next = named.begin();
  for (const glyph::ComputedEntity& record : given) {
    const auto* const entry = entryOf(record.hex);
    const std::string name = glyph::lowercased(entry ? std::string_view(entry->name) : record.fallbackName);
    if (name.empty() || name == "<control>" || record.group == "Private Use Area") continue;
    require(next != named.end() && next->hex == record.hex, "records with a usable name keep their order");
    require(glyph::lowercased(next->fallbackName) == name,
            "the name is from the table, or from the record if the table lacks the code");
    require(entry ? next->isSFSymbol == entry->isSFSymbol : !next->isSFSymbol,
            "isSFSymbol is from the table, or false if the table lacks the code");
    ++next;
  }
  require(next == named.end(), "the result has no additional records");
  const Records again = glyph::toolKit().addNames(named);
  require(again.size() == named.size(), "a second completion keeps all records");
  for (std::size_t i = 0; i < again.size(); ++i) {
    require(again[i].fallbackName == named[i].fallbackName, "a second completion keeps all names");
  }
  return 0;
}
