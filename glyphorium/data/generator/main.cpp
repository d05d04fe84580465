// SPDX-License-Identifier: MIT
// A program that converts the sources of the embedded texts to constants of the library. The build runs it.
// If a source breaks a rule or Figures::check() throws an exception, the program fails and the build stops.
#include <cstdio>
#include <exception>
#include <set>

#include "glyphorium/data/generator/character_tables.h"
#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/enrichment_table.h"
#include "glyphorium/data/generator/figures.h"
#include "glyphorium/data/generator/group_tables.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"
#include "glyphorium/data/generator/notations.h"
#include "glyphorium/data/generator/notes.h"
#include "glyphorium/data/generator/prepared_rows.h"
#include "glyphorium/data/generator/search_facts.h"

namespace {

using namespace glyph::generator;

void addGroupTables(const std::vector<GroupTable>& tables, EmbeddedImage& image, Figures& figures) {
  std::size_t rows = 0;
  std::size_t bytes = 0;
  std::size_t configuredTables = 0;
  std::size_t configuredRows = 0;
  for (const GroupTable& table : tables) {
    image.addText(table.constant, table.group, table.members.size(), table.configured, table.json);
    rows += table.members.size();
    bytes += table.json.size();
    configuredTables += table.configured ? 1 : 0;
    configuredRows += table.configured ? table.members.size() : 0;
    image.addGroupKind(table.group, table.kind);
  }
  figures.reached("group tables", tables.size());
  figures.reached("group table rows", rows);
  figures.reached("group table bytes", bytes);
  figures.reached("configured group tables", configuredTables);
  figures.reached("configured rows", configuredRows);
}

// Returns an index with only some of the code points: every sixteenth one, and each one whose line does not
// directly follow the line of the next lower code point.
EmbeddedImage::Index sparse(const NameTable::Text& text) {
  constexpr int mostLines = 16;
  EmbeddedImage::Index index;
  std::size_t next = 0;
  int lines = 0;
  for (const auto& [codePoint, nameOffset] : text.index) {
    const std::size_t line = text.json.rfind('{', nameOffset);
    if (line != next || lines == mostLines) {
      index.emplace_back(codePoint, static_cast<std::uint32_t>(line));
      lines = 0;
    }
    ++lines;
    next = text.json.find('\n', line) + 1;
  }
  return index;
}

void addNameTable(const NameTable& names, EmbeddedImage& image, Figures& figures) {
  const NameTable::Text text = names.text();
  const std::size_t entries = names.unicode().size() + names.symbols().size();
  image.addText("structuredUnicodeJSON", "", entries, false, text.json);
  image.addPart("sfSymbols", names.symbols().size(), text.fragmentOffset, text.fragmentSize);
  image.addNameIndex(sparse(text));
  figures.reached("unicode names", names.unicode().size());
  figures.reached("sf symbols", names.symbols().size());
  figures.reached("name table first piece bytes", text.fragmentOffset);
  figures.reached("bytes of sfSymbols", text.fragmentSize);
}

void generate(const std::filesystem::path& sources, const std::filesystem::path& folder) {
  Figures figures(sources);
  const std::vector<Language> languages = readLanguages(sources);
  EmbeddedImage image;
  const NameTable names(sources);
  const std::vector<GroupTable> tables = makeGroupTables(sources, names);
  addGroupTables(tables, image, figures);

  std::set<char32_t> configured;
  for (const GroupTable& table : tables) {
    if (table.configured) configured.insert(table.members.begin(), table.members.end());
  }
  const EnrichmentTable enrichment = makeEnrichmentTable(sources, languages, names, configured, figures);
  image.addText("additionalJson", "", enrichment.rows, false, enrichment.json);
  image.addPreparedRows(prepareRows(tables, names, enrichment));
  image.addPreparedEnrichment(enrichment.prepared, enrichment.index);

  addNameTable(names, image, figures);
  addSearchFacts(sources, languages, names, image, figures);
  addSupplementaryNotes(sources, languages, names, image);
  addCharacterTables(sources, languages, names, image);
  addNotations(sources, image);
  figures.check();
  image.write(folder);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: glyphorium-generate SOURCES FOLDER\n", stderr);
    return 2;
  }
  try {
    generate(argv[1], argv[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
