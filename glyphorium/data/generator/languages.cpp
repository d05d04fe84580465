// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/languages.h"

#include <algorithm>
#include <array>

#include "glyphorium/text/unicode_text.h"

namespace glyph::generator {
namespace {

namespace fs = std::filesystem;

constexpr std::array<std::string_view, 4> searchFileKinds{"annotations", "everyday-names", "grammar",
                                                          "synonyms"};

void requireKnown(const std::vector<Language>& languages, const fs::path& file, const std::string& code) {
  const auto isIt = [&](const Language& language) { return language.code == code; };
  if (std::none_of(languages.begin(), languages.end(), isIt))
    Place{file, 0}.fail("'" + code + "' is not a language of languages.tsv");
}

}  // namespace

std::vector<Language> readLanguages(const fs::path& sources) {
  std::vector<Language> languages;
  for (const SourceLine& line : readTable(sources / "languages.tsv", 3, 5)) {
    const std::string& notes = line.columns[2];
    if (notes != "counted" && notes != "growing") line.fail("'" + notes + "' must be 'counted' or 'growing'");
    for (const Language& other : languages) {
      if (other.code == line.columns[0]) line.fail("repeats a key of an earlier line");
    }
    const auto characters = [&](std::size_t column) {
      return column < line.columns.size() ? codePoints(line.columns[column]) : std::u32string();
    };
    languages.push_back(
        {line.columns[0], line.number(1), notes == "counted", characters(3), characters(4), line.place});
  }
  for (const fs::path& file : fs::directory_iterator(sources / "enrichment" / "advice"))
    requireKnown(languages, file, file.stem());
  for (const fs::path& file : fs::directory_iterator(sources / "notes")) {
    if (file.extension() == ".md") requireKnown(languages, file, file.stem());
  }
  for (const fs::path& file : fs::directory_iterator(sources / "search")) {
    const fs::path name = file.stem();
    if (name.extension().empty()) continue;
    if (std::find(searchFileKinds.begin(), searchFileKinds.end(), name.stem()) == searchFileKinds.end())
      Place{file, 0}.fail("'" + name.stem().string() + "' is not a kind of file");
    requireKnown(languages, file, name.extension().string().substr(1));
  }
  return languages;
}

fs::path searchFile(const fs::path& sources, const std::string& kind, const Language& language) {
  const fs::path file = sources / "search" / (kind + "." + language.code + ".tsv");
  return fs::exists(file) ? file : fs::path();
}

}  // namespace glyph::generator
