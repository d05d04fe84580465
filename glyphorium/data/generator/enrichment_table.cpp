// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/enrichment_table.h"

#include <algorithm>
#include <map>
#include <utility>
#include <vector>

#include "glyphorium/data/generator/notes.h"

namespace glyph::generator {
namespace {

struct Row {
  std::map<std::string, std::string> notes;  // maps a language to the text of the note
  std::string htmlNamed;
  std::string betterName;
  std::string imageName;
  bool needsSerifs = false;
  std::vector<std::string> searchTerms;
};

// The rows of each code point, in the order of the table. A code point has one row for each of its lines of
// search terms, and at least one row.
using RowsByHex = std::map<std::string, std::vector<Row>>;

// Returns the last row of a code point, and adds a row if the code point has none. Notes, references and
// attributes are in this row. The other rows contain only search terms.
Row& mainRow(RowsByHex& rows, const std::string& hex) {
  std::vector<Row>& all = rows[hex];
  if (all.empty()) all.emplace_back();
  return all.back();
}

void requirePlainText(const Place& place, const std::string& text) {
  if (text.find_first_of("\"\\") != std::string::npos)
    place.fail("contains a straight quotation mark or a reverse solidus");
  for (const char c : text) {
    if (static_cast<unsigned char>(c) < 0x20) place.fail("contains a control character");
  }
}

void readSearchTerms(const std::filesystem::path& file, RowsByHex& rows) {
  std::string previous;
  for (const SourceLine& line : readTable(file, 2, 10)) {
    const std::string hex = hexText(line.codePoint(0, false));
    if (hex < previous) line.fail("is out of order");
    previous = hex;
    Row row;
    row.searchTerms.assign(line.columns.begin() + 1, line.columns.end());
    std::vector<std::string> sorted = row.searchTerms;
    std::sort(sorted.begin(), sorted.end());
    if (std::adjacent_find(sorted.begin(), sorted.end()) != sorted.end())
      line.fail("contains the same term twice");
    for (const std::string& term : row.searchTerms) {
      if (term.empty()) line.fail("contains an empty term");
      requirePlainText(line.place, term);
    }
    rows[hex].push_back(std::move(row));
  }
}

void readReferences(const std::filesystem::path& file, RowsByHex& rows, Figures& figures) {
  std::string previous;
  std::size_t elsewhere = 0;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const std::string hex = hexText(line.codePoint(0, false));
    if (hex <= previous) line.fail("is out of order");
    previous = hex;
    const std::string& reference = line.columns[1];
    if (reference.empty()) continue;
    if (reference.size() < 3 || reference.front() != '&' || reference.back() != ';')
      line.fail("is not an HTML reference");
    const std::string name = " " + reference.substr(1, reference.size() - 2) + " ";
    if ((" " + line.columns[2] + " ").find(name) == std::string::npos) ++elsewhere;
    mainRow(rows, hex).htmlNamed = reference;
  }
  figures.reached("htmlNamed beside another character", elsewhere);
}

void readAttributes(const std::filesystem::path& file, RowsByHex& rows) {
  std::string previous;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const std::string hex = hexText(line.codePoint(0, false));
    if (hex < previous) line.fail("is out of order");
    previous = hex;
    requirePlainText(line.place, line.columns[2]);
    Row& row = mainRow(rows, hex);
    if (line.columns[1] == "betterName") {
      row.betterName = line.columns[2];
    } else if (line.columns[1] == "imageName") {
      row.imageName = line.columns[2];
    } else if (line.columns[1] == "needsSerifs" && line.columns[2] == "true") {
      row.needsSerifs = true;
    } else {
      line.fail("is not an attribute, or has a wrong value");
    }
  }
}

std::string jsonText(std::string_view text) {
  std::string json = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') json += '\\';
    if (c == '\n')
      json += "\\n";
    else
      json += c;
  }
  return json + '"';
}

// Returns a JSON array with one element per line and an indentation of two spaces per level. An empty array
// has a line of spaces between its brackets.
std::string jsonArray(const std::vector<std::string>& elements) {
  std::string json = "[\n      ";
  for (std::size_t i = 0; i < elements.size(); ++i) json += (i ? ",\n      " : "") + elements[i];
  return json + "\n    ]";
}

std::string rowJson(const std::string& hex, const Row& row, const std::vector<Language>& languages) {
  std::vector<std::string> advice;
  for (const Language& language : languages) {
    const auto note = row.notes.find(language.code);
    if (note == row.notes.end()) continue;
    advice.push_back("{\n        \"lang\": \"" + language.code +
                     "\",\n        \"text\": " + jsonText(note->second) + "\n      }");
  }
  std::vector<std::string> terms;
  for (const std::string& term : row.searchTerms) terms.push_back(jsonText(term));
  return "  {\n    \"advice\": " + jsonArray(advice) + ",\n    \"hex\": " + jsonText(hex) +
         ",\n    \"htmlNamed\": " + jsonText(row.htmlNamed) +
         ",\n    \"needsSerifs\": " + (row.needsSerifs ? "true" : "false") +
         ",\n    \"imageName\": " + jsonText(row.imageName) +
         ",\n    \"betterName\": " + jsonText(row.betterName) +
         ",\n    \"searchTerms\": " + jsonArray(terms) + "\n  }";
}

// Appends a number that fits into one byte.
void appendNumber(std::size_t number, const std::string& hex, std::string& bytes) {
  if (number > UINT8_MAX) throw SourceError("enrichment: error: " + hex + " has too many texts");
  bytes += static_cast<char>(number);
}

// Returns the fields of the row in the form that PreparedEnrichmentReader reads.
std::string preparedRow(const std::string& hex, const Row& row, const std::vector<Language>& languages) {
  std::string bytes;
  appendNumber(row.needsSerifs, hex, bytes);
  appendNumber(row.searchTerms.size(), hex, bytes);
  appendNumber(row.notes.size(), hex, bytes);
  const auto append = [&](const std::string& text) { bytes.append(text.c_str(), text.size() + 1); };
  for (const std::string& text : {hex, row.betterName, row.htmlNamed, row.imageName}) append(text);
  for (const std::string& term : row.searchTerms) append(term);
  for (const Language& language : languages) {
    const auto note = row.notes.find(language.code);
    if (note == row.notes.end()) continue;
    append(language.code);
    append(note->second);
  }
  return bytes;
}

void noteFigures(const RowsByHex& rows, const NameTable& names, const std::set<char32_t>& configured,
                 Figures& figures) {
  std::map<std::string, std::size_t> counts;
  for (const auto& [hex, all] : rows) {
    const auto codePoint = static_cast<char32_t>(std::stoul(hex, nullptr, 16));
    if (!names.find(codePoint)) throw SourceError("enrichment: error: " + hex + " has no name");
    counts["enrichment code points in no configured table"] += configured.contains(codePoint) ? 0 : 1;
    for (const Row& row : all) {
      counts["rows with htmlNamed"] += row.htmlNamed.empty() ? 0 : 1;
      counts["rows with searchTerms"] += row.searchTerms.empty() ? 0 : 1;
      counts["search terms"] += row.searchTerms.size();
      counts["rows with advice"] += row.notes.empty() ? 0 : 1;
      counts["rows with needsSerifs"] += row.needsSerifs ? 1 : 0;
      counts["rows with betterName"] += row.betterName.empty() ? 0 : 1;
      counts["rows with imageName"] += row.imageName.empty() ? 0 : 1;
      for (const auto& [language, note] : row.notes) {
        counts["line break escapes in advice"] +=
            static_cast<std::size_t>(std::count(note.begin(), note.end(), '\n'));
      }
    }
    counts["enrichment rows"] += all.size();
  }
  counts["enrichment code points"] = rows.size();
  for (const auto& [figure, value] : counts) figures.reached(figure, value);
}

EnrichmentTable makeTable(const RowsByHex& rows, const std::vector<Language>& languages) {
  EnrichmentTable table{"[\n", 0, {}, {}};
  for (const auto& [hex, all] : rows) {  // std::map is sorted by the hex text
    table.index.emplace_back(std::stoul(hex, nullptr, 16), static_cast<std::uint32_t>(table.prepared.size()));
    table.prepared += preparedRow(hex, all.front(), languages);
    for (const Row& row : all) {
      if (table.rows++ > 0) table.json += ",\n";
      table.json += rowJson(hex, row, languages);
    }
  }
  table.json += "\n]";
  std::sort(table.index.begin(), table.index.end());
  return table;
}

}  // namespace

EnrichmentTable makeEnrichmentTable(const std::filesystem::path& sources,
                                    const std::vector<Language>& languages, const NameTable& names,
                                    const std::set<char32_t>& configured, Figures& figures) {
  const std::filesystem::path folder = sources / "enrichment";
  RowsByHex rows;
  // Read the search terms first, because they decide how many rows a code point has.
  readSearchTerms(folder / "search-terms.tsv", rows);
  readReferences(folder / "html-references.tsv", rows, figures);
  readAttributes(folder / "attributes.tsv", rows);
  const auto addNotes = [&](bool counted) {
    for (const Language& language : languages) {
      if (language.notesAreCounted != counted) continue;
      for (const auto& [codePoint, note] : tableNotes(sources, language, names))
        mainRow(rows, hexText(codePoint)).notes[language.code] = note;
    }
  };
  addNotes(true);
  noteFigures(rows, names, configured, figures);
  figures.reached("bytes of additionalJson", makeTable(rows, languages).json.size());
  addNotes(false);
  return makeTable(rows, languages);
}

}  // namespace glyph::generator
