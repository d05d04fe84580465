// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/search_facts.h"

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {
namespace {

using Facts = std::map<char32_t, std::vector<std::string>>;

constexpr std::size_t manyColumns = 64;

const char* const languages[] = {"en", "de", "fr", "it", "es"};

// The code point of a line, which has a name and does not stand before that of the line before.
char32_t orderedCodePoint(const SourceLine& line, const NameTable& names, char32_t& previous) {
  const char32_t codePoint = line.codePoint(0, false);
  if (codePoint < previous) line.fail("is out of order");
  if (!names.find(codePoint)) line.fail("has no name");
  previous = codePoint;
  return codePoint;
}

void requireDistinctTexts(const SourceLine& line, std::size_t firstColumn, bool firstMayBeEmpty) {
  std::vector<std::string> texts(line.columns.begin() + static_cast<std::ptrdiff_t>(firstColumn),
                                 line.columns.end());
  if (firstMayBeEmpty && texts.front().empty()) texts.erase(texts.begin());
  std::sort(texts.begin(), texts.end());
  if (!texts.empty() && texts.front().empty()) line.fail("holds an empty text");
  if (std::adjacent_find(texts.begin(), texts.end()) != texts.end()) line.fail("holds a text twice");
}

// One line a code point: its texts in the columns behind.
Facts readFacts(const std::filesystem::path& file, const NameTable& names, bool firstMayBeEmpty) {
  Facts facts;
  char32_t previous = 0;
  for (const SourceLine& line : readTable(file, 2, manyColumns)) {
    const char32_t codePoint = orderedCodePoint(line, names, previous);
    requireDistinctTexts(line, 1, firstMayBeEmpty);
    if (!facts.emplace(codePoint, std::vector(line.columns.begin() + 1, line.columns.end())).second)
      line.fail("stands twice");
  }
  return facts;
}

Facts readAliases(const std::filesystem::path& file, const NameTable& names) {
  Facts facts;
  char32_t previous = 0;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    const char32_t codePoint = orderedCodePoint(line, names, previous);
    const std::string& type = line.columns[1];
    if (type != "correction" && type != "control" && type != "alternate" && type != "figment" &&
        type != "abbreviation") {
      line.fail("'" + type + "' is no type of alias");
    }
    requireDistinctTexts(line, 2, false);
    facts[codePoint].push_back(line.columns[2]);
  }
  return facts;
}

Facts readHtmlNames(const std::filesystem::path& file) {
  Facts facts;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    std::istringstream all(line.columns[2]);
    for (std::string name; std::getline(all, name, ' ');) {
      if (name.empty()) line.fail("holds an empty name");
      facts[line.codePoint(0, false)].push_back(name);
    }
  }
  return facts;
}

// The place in the order, from 0, as text.
Facts readMostWanted(const std::filesystem::path& file, const NameTable& names) {
  Facts facts;
  std::size_t place = 0;
  for (const SourceLine& line : readTable(file, 2, 2)) {
    const char32_t codePoint = line.codePoint(0, false);
    const NameTable::Entry* const entry = names.find(codePoint);
    if (!entry || entry->name != line.columns[1]) line.fail("does not carry the name of the code point");
    if (!facts.emplace(codePoint, std::vector{std::to_string(place++)}).second) line.fail("stands twice");
  }
  return facts;
}

// The lines themselves, without comments.
std::string readSynonyms(const std::filesystem::path& file) {
  std::string text;
  std::string previous;
  for (const SourceLine& line : readTable(file, 2, manyColumns)) {
    if (line.columns[0] <= previous) line.fail("is out of order");
    previous = line.columns[0];
    requireDistinctTexts(line, 0, false);
    for (std::size_t i = 0; i < line.columns.size(); ++i) {
      if (line.columns[i].find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789") != std::string::npos)
        line.fail("holds what is no word of lower-case letters and digits");
      text += (i ? "\t" : "") + line.columns[i];
    }
    text += '\n';
  }
  return text;
}

std::size_t count(const Facts& facts) {
  std::size_t texts = 0;
  for (const auto& [codePoint, all] : facts) {
    texts += static_cast<std::size_t>(
        std::count_if(all.begin(), all.end(), [](const std::string& text) { return !text.empty(); }));
  }
  return texts;
}

}  // namespace

void addSearchFacts(const std::filesystem::path& sources, const NameTable& names, EmbeddedImage& image,
                    Figures& figures) {
  // What comes from elsewhere has a figure, so that no text of it gets lost; this project's own lists grow.
  const auto addImported = [&](const char* kind, const std::string& language, const std::string& figure,
                               const Facts& facts) {
    image.addSearchFacts(kind, language, facts);
    figures.reached(figure, count(facts));
  };
  const std::filesystem::path folder = sources / "search";
  addImported("alias", "", "name aliases", readAliases(folder / "name-aliases.tsv", names));
  addImported("htmlName", "", "html names", readHtmlNames(sources / "enrichment" / "html-references.tsv"));
  for (const std::string language : languages) {
    addImported("annotation", language, "annotations " + language,
                readFacts(folder / ("annotations." + language + ".tsv"), names, true));
    image.addSearchFacts("everydayName", language,
                         readFacts(folder / ("everyday-names." + language + ".tsv"), names, false));
  }
  image.addSearchFacts("mostWanted", "", readMostWanted(folder / "most-wanted.tsv", names));
  for (const std::string language : languages)
    image.addSynonyms(language, readSynonyms(folder / ("synonyms." + language + ".tsv")));
}

}  // namespace glyph::generator
