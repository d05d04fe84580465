// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/group_tables.h"

#include <algorithm>
#include <array>
#include <set>

#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::generator {
namespace {

// Columns of groups.tsv.
enum Column : std::size_t {
  constant,
  group,
  first,
  last,
  rows,
  membership,
  use,
  layout,
  order,
  kind,
  columnCount
};

constexpr std::array<std::string_view, 8> groupKinds{"common-signs", "other-signs", "phonetic",
                                                     "script",       "modifiers",   "lookalikes",
                                                     "private-use",  "selection"};

// Returns true if the column contains `yes`, and false if it contains `no`. Fails if it contains another
// text.
bool choose(const SourceLine& line, Column column, std::string_view yes, std::string_view no) {
  if (line.columns[column] != yes && line.columns[column] != no) {
    line.fail("'" + line.columns[column] + "' must be '" + std::string(yes) + "' or '" + std::string(no) +
              "'");
  }
  return line.columns[column] == yes;
}

std::vector<char32_t> readSelection(const std::filesystem::path& file) {
  std::vector<char32_t> members;
  for (SourceLine line : readTable(file, 1, 1)) {
    const std::size_t dots = line.columns[0].find("..");
    if (dots != std::string::npos) {
      line.columns.push_back(line.columns[0].substr(dots + 2));
      line.columns[0].resize(dots);
    }
    const char32_t begin = line.codePoint(0, false);
    const char32_t end = line.columns.size() == 2 ? line.codePoint(1, false) : begin;
    if (end < begin || (!members.empty() && begin <= members.back())) line.fail("is out of order");
    for (char32_t codePoint = begin; codePoint <= end; ++codePoint) members.push_back(codePoint);
  }
  return members;
}

std::vector<char32_t> readBlock(const SourceLine& line, const NameTable& names) {
  const char32_t begin = line.codePoint(first, false);
  const char32_t end = line.codePoint(last, false);
  std::vector<char32_t> members;
  for (const NameTable::Entry& entry : names.unicode()) {
    if (entry.codePoint >= begin && entry.codePoint <= end && entry.name != "<control>") {
      members.push_back(entry.codePoint);
    }
  }
  return members;
}

// The symbol is not escaped, not even U+0022 and U+005C, so these two rows are not valid JSON. Readers of the
// table repair them before parsing. The repair would damage a symbol that is already escaped.
std::string rowJson(char32_t codePoint, const RowTexts& texts, const GroupTable& table) {
  return "{\"symbol\":\"" + texts.symbol + "\",\"hex\":\"" + texts.hex + "\"," +
         (table.isSFSymbols ? "\"isSFSymbol\":true," : "") + "\"htmlHex\":\"" + texts.htmlHex +
         "\",\"fallbackName\":\"" + texts.fallbackName + "\",\"htmlDecimal\":\"" + texts.htmlDecimal +
         "\",\"decimal\":" + std::to_string(static_cast<std::uint32_t>(codePoint)) + ",\"group\":\"" +
         table.group + "\"}";
}

GroupTable makeTable(const SourceLine& line, const std::filesystem::path& sources, const NameTable& names) {
  GroupTable table{line.columns[constant],
                   line.columns[group],
                   choose(line, use, "configured", "text"),
                   line.columns[kind],
                   {},
                   line.columns[constant] == "sfSymbolsJson",
                   "["};
  if (std::find(groupKinds.begin(), groupKinds.end(), table.kind) == groupKinds.end())
    line.fail("'" + table.kind + "' is not a kind of group");
  const bool oneRowALine = choose(line, layout, "lines", "compact");
  table.members = choose(line, membership, "selection", "block")
                      ? readSelection(sources / "selections" / (table.constant + ".txt"))
                      : readBlock(line, names);
  if (choose(line, order, "hex-text", "code-point")) {
    std::sort(table.members.begin(), table.members.end(),
              [](char32_t a, char32_t b) { return hexText(a) < hexText(b); });
  }
  if (table.members.size() != line.number(rows)) {
    line.fail("has a table of " + std::to_string(table.members.size()) + " rows, expected " +
              line.columns[rows]);
  }
  if (table.members.front() != line.codePoint(first, false) ||
      table.members.back() != line.codePoint(last, false)) {
    line.fail("has a table from " + hexText(table.members.front()) + " to " + hexText(table.members.back()));
  }
  for (const char32_t codePoint : table.members) {
    if (!names.find(codePoint)) line.fail("member " + hexText(codePoint) + " has no name");
    if (table.isSFSymbols && !names.isSymbol(codePoint))
      line.fail("member " + hexText(codePoint) + " is not an SF Symbol");
    if (table.json.size() > 1) table.json += oneRowALine ? ",\n" : ",";
    table.json += rowJson(codePoint, rowTexts(codePoint, names), table);
  }
  table.json += ']';
  return table;
}

}  // namespace

RowTexts rowTexts(char32_t codePoint, const NameTable& names) {
  const std::string hex = hexText(codePoint);
  const std::size_t zeros = std::min(hex.find_first_not_of('0'), hex.size());
  return {hex, "&#x" + hex.substr(zeros) + ";",
          "&#" + std::to_string(static_cast<std::uint32_t>(codePoint)) + ";", utf8(codePoint),
          capitalizedName(names.find(codePoint)->name)};
}

std::vector<GroupTable> makeGroupTables(const std::filesystem::path& sources, const NameTable& names) {
  std::vector<GroupTable> tables;
  std::set<std::string> seen;
  for (const SourceLine& line : readTable(sources / "groups.tsv", columnCount, columnCount)) {
    for (const Column column : {constant, group}) {
      if (!seen.insert(line.columns[column]).second)
        line.fail("'" + line.columns[column] + "' is already in an earlier line");
    }
    tables.push_back(makeTable(line, sources, names));
  }
  return tables;
}

}  // namespace glyph::generator
