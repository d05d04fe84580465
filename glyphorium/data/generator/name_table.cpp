// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/name_table.h"

#include <algorithm>
#include <set>

#include "glyphorium/text/ascii.h"

namespace glyph::generator {
namespace {

void requireCharacters(const SourceLine& line, const std::string& name, std::string_view allowed) {
  if (name.empty()) line.fail("has no name");
  for (const char c : name) {
    if (!ascii::isAlphanumeric(c) && allowed.find(c) == std::string_view::npos) {
      line.fail("name '" + name + "' contains a character that names do not have");
    }
  }
}

}  // namespace

NameTable::NameTable(const std::filesystem::path& sources) {
  std::map<char32_t, std::string> controls;
  for (const SourceLine& line : readTable(sources / "control-names.tsv", 2, 2)) {
    requireCharacters(line, line.columns[1], " -()");
    if (!controls.emplace(line.codePoint(0, true), line.columns[1]).second)
      line.fail("repeats a key of an earlier line");
  }
  for (const SourceLine& line : readTable(sources / "unicode-13.0-names.tsv", 2, 2)) {
    const char32_t codePoint = line.codePoint(0, true);
    if (!unicode_.empty() && codePoint <= unicode_.back().codePoint) line.fail("is out of order");
    requireCharacters(line, line.columns[1], " -.,()<>");
    const auto control = controls.find(codePoint);
    if (control != controls.end() && line.columns[1] != "<control>")
      line.fail("is not a control character, but control-names.tsv names it");
    unicodePlaces_.emplace(codePoint, unicode_.size());
    unicode_.push_back(
        {codePoint, control != controls.end() ? control->second : line.columns[1], line.place});
  }
  for (const auto& [codePoint, name] : controls) {
    if (!unicodePlaces_.contains(codePoint))
      Place{sources / "control-names.tsv", 0}.fail(name + " is not in unicode-13.0-names.tsv");
  }
  std::set<std::string> seen;
  for (const SourceLine& line : readTable(sources / "sf-symbols-1.tsv", 2, 2)) {
    const char32_t codePoint = line.codePoint(0, true);
    if (codePoint < 0x100000) line.fail("is not in plane 16");
    requireCharacters(line, line.columns[1], ".");
    if (!seen.insert(line.columns[1]).second)
      line.fail("name '" + line.columns[1] + "' is already in an earlier line");
    if (!symbolPlaces_.emplace(codePoint, symbols_.size()).second)
      line.fail("repeats a key of an earlier line");
    symbols_.push_back({codePoint, line.columns[1], line.place});
  }
}

const NameTable::Entry* NameTable::find(char32_t codePoint) const {
  if (const auto place = unicodePlaces_.find(codePoint); place != unicodePlaces_.end()) {
    return &unicode_[place->second];
  }
  if (const auto place = symbolPlaces_.find(codePoint); place != symbolPlaces_.end()) {
    return &symbols_[place->second];
  }
  return nullptr;
}

NameTable::Text NameTable::text() const {
  Text text{"[", 0, 0, {}};
  const auto append = [&text](const Entry& entry, bool isSymbol) {
    text.json += "{\"hex\":\"" + upperHexText(entry.codePoint) + "\",\"name\":\"";
    text.index.emplace_back(entry.codePoint, static_cast<std::uint32_t>(text.json.size()));
    text.json += entry.name + "\",\"isSFSymbol\":" + (isSymbol ? "true}" : "false}");
  };
  for (const Entry& entry : unicode_) {
    append(entry, false);
    text.json += ",\n";
  }
  text.fragmentOffset = text.json.size();
  for (const Entry& entry : symbols_) {
    if (&entry != &symbols_.front()) text.json += ",\n";
    append(entry, true);
  }
  text.fragmentSize = text.json.size() - text.fragmentOffset;
  text.json += "\n]";

  // The sort is stable, so std::unique() keeps the first entry of each code point.
  std::stable_sort(text.index.begin(), text.index.end(), [](auto& a, auto& b) { return a.first < b.first; });
  const auto sameCodePoint = [](auto& a, auto& b) { return a.first == b.first; };
  text.index.erase(std::unique(text.index.begin(), text.index.end(), sameCodePoint), text.index.end());
  return text;
}

}  // namespace glyph::generator
