// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/search_facts.h"

#include <algorithm>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "glyphorium/data/generator/search_grammar.h"
#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {
namespace {

using Facts = std::map<char32_t, std::vector<std::string>>;

constexpr std::size_t manyColumns = 64;

// Returns the code point of a line and stores it in `previous`. Fails if the code point has no name or is
// smaller than the one in the previous line.
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
  if (!texts.empty() && texts.front().empty()) line.fail("contains an empty text");
  if (std::adjacent_find(texts.begin(), texts.end()) != texts.end())
    line.fail("contains the same text twice");
}

// Reads a file in which each line has a code point and the texts of that code point.
Facts readFacts(const std::filesystem::path& file, const NameTable& names, bool firstMayBeEmpty) {
  Facts facts;
  char32_t previous = 0;
  for (const SourceLine& line : readTable(file, 2, manyColumns)) {
    const char32_t codePoint = orderedCodePoint(line, names, previous);
    requireDistinctTexts(line, 1, firstMayBeEmpty);
    if (!facts.emplace(codePoint, std::vector(line.columns.begin() + 1, line.columns.end())).second)
      line.fail("repeats a key of an earlier line");
  }
  return facts;
}

Facts readHtmlNames(const std::filesystem::path& file) {
  Facts facts;
  for (const SourceLine& line : readTable(file, 3, 3)) {
    std::istringstream all(line.columns[2]);
    for (std::string name; std::getline(all, name, ' ');) {
      if (name.empty()) line.fail("contains an empty name");
      facts[line.codePoint(0, false)].push_back(name);
    }
  }
  return facts;
}

// Reads the list of most wanted characters. The text of each code point is its position in the list, as a
// decimal number that starts at 0.
Facts readMostWanted(const std::filesystem::path& file, const NameTable& names) {
  Facts facts;
  std::size_t place = 0;
  for (const SourceLine& line : readTable(file, 2, 2)) {
    const char32_t codePoint = line.codePoint(0, false);
    const NameTable::Entry* const entry = names.find(codePoint);
    if (!entry || entry->name != line.columns[1]) line.fail("has another name than the name table");
    if (!facts.emplace(codePoint, std::vector{std::to_string(place++)}).second)
      line.fail("repeats a key of an earlier line");
  }
  return facts;
}

// Returns the lines of the file without the comments.
std::string readSynonyms(const std::filesystem::path& file) {
  std::string text;
  std::string previous;
  for (const SourceLine& line : readTable(file, 2, manyColumns)) {
    if (line.columns[0] <= previous) line.fail("is out of order");
    previous = line.columns[0];
    requireDistinctTexts(line, 0, false);
    for (std::size_t i = 0; i < line.columns.size(); ++i) {
      if (line.columns[i].find_first_not_of("abcdefghijklmnopqrstuvwxyz0123456789") != std::string::npos)
        line.fail("'" + line.columns[i] + "' is not a word of lower-case letters and digits");
      text += (i ? "\t" : "") + line.columns[i];
    }
    text += '\n';
  }
  return text;
}

std::string readMarks(const std::filesystem::path& file) {
  std::string text;
  std::string previous;
  for (const SourceLine& line : readTable(file, 2, 2)) {
    if (line.columns[0] <= previous) line.fail("is out of order");
    previous = line.columns[0];
    text += line.columns[0] + '\t' + line.columns[1] + '\n';
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

void addSearchFacts(const std::filesystem::path& sources, const std::vector<Language>& languages,
                    const NameTable& names, EmbeddedImage& image, Figures& figures) {
  const std::filesystem::path folder = sources / "search";
  // The number of texts is checked for lists from other sources only, to notice lost texts. The project's own
  // lists may grow.
  const Facts htmlNames = readHtmlNames(sources / "enrichment" / "html-references.tsv");
  image.addSearchFacts("htmlName", "", htmlNames);
  figures.reached("html names", count(htmlNames));
  for (const Language& language : languages) {
    Facts annotations;
    if (const auto file = searchFile(sources, "annotations", language); !file.empty())
      annotations = readFacts(file, names, true);
    if (count(annotations) != language.annotationTexts) {
      language.place.fail("annotations." + language.code + ".tsv contains " +
                          std::to_string(count(annotations)) + " texts, wanted " +
                          std::to_string(language.annotationTexts));
    }
    EmbeddedImage::CharacterTable table;
    for (const auto& [codePoint, texts] : annotations) {
      std::string& line = table[codePoint] = texts.front() + "\t";
      for (std::size_t i = 1; i < texts.size(); ++i) line += (i > 1 ? "\n" : "") + texts[i];
    }
    image.addCharacterAnnotations(language.code, table);
    if (const auto file = searchFile(sources, "everyday-names", language); !file.empty())
      image.addSearchFacts("everydayName", language.code, readFacts(file, names, false));
  }
  image.addSearchFacts("mostWanted", "", readMostWanted(folder / "most-wanted.tsv", names));
  std::set<std::string> stopWords;
  for (const Language& language : languages) {
    SearchGrammar grammar;
    std::string synonyms;
    if (const auto file = searchFile(sources, "grammar", language); !file.empty())
      grammar = readGrammar(file);
    if (const auto file = searchFile(sources, "synonyms", language); !file.empty())
      synonyms = readSynonyms(file);
    image.addSearchLanguage(language.code, synonyms, grammar);
    stopWords.merge(grammar.stopWords);
  }
  image.addStopWords(lines(stopWords));
  image.addMarks(readMarks(folder / "marks.tsv"));
}

}  // namespace glyph::generator
