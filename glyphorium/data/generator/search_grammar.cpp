// SPDX-License-Identifier: MIT
#include "glyphorium/data/generator/search_grammar.h"

#include <algorithm>

#include "glyphorium/data/generator/source_file.h"
#include "glyphorium/text/ascii.h"

namespace glyph::generator {
namespace {

bool isWordLetter(char c) {
  return ascii::isAlphanumeric(c) && c == ascii::lowered(c);
}

// Returns the columns of a rule except the first one, which is the kind of the rule. Fails if they are fewer
// than `least` or more than `most`.
std::vector<std::string> operands(const SourceLine& line, std::size_t least, std::size_t most) {
  std::vector<std::string> texts(line.columns.begin() + 1, line.columns.end());
  if (texts.size() < least || texts.size() > most) line.fail("has too few or too many columns for its kind");
  return texts;
}

void addWord(const SourceLine& line, std::set<std::string>& words) {
  if (!words.insert(operands(line, 1, 1).front()).second) line.fail("repeats a key of an earlier line");
}

void addRule(const SourceLine& line, std::size_t least, std::size_t most, std::string& rules) {
  std::string separator;
  for (const std::string& text : operands(line, least, most)) {
    rules += separator + (text == "-" ? "" : text);
    separator = "\t";
  }
  rules += '\n';
}

}  // namespace

SearchGrammar readGrammar(const std::filesystem::path& file) {
  constexpr std::size_t mostSingulars = 16;
  SearchGrammar grammar;
  for (const SourceLine& line : readTable(file, 2, mostSingulars + 2)) {
    for (std::size_t i = 1; i < line.columns.size(); ++i) {
      const std::string& text = line.columns[i];
      const bool isNothing = i > 1 && text == "-";
      if (text.empty() || !(isNothing || std::all_of(text.begin(), text.end(), isWordLetter)))
        line.fail("'" + text + "' is not a word of digits and lower-case letters without diacritics");
    }
    const std::string& kind = line.columns[0];
    if (kind == "stop-word") {
      addWord(line, grammar.stopWords);
    } else if (kind == "function-word") {
      addWord(line, grammar.functionWords);
    } else if (kind == "plural") {
      addRule(line, 2, mostSingulars + 1, grammar.plurals);
    } else if (kind == "linking-letters") {
      addRule(line, 1, 1, grammar.linkingLetters);
    } else if (kind == "spelling") {
      addRule(line, 2, 2, grammar.spellings);
    } else if (kind == "sound") {
      addRule(line, 2, 2, grammar.sounds);
    } else if (kind == "head" && (line.columns[1] == "first" || line.columns[1] == "last")) {
      grammar.headFirst = line.columns[1] == "first";
    } else {
      line.fail("'" + kind + "' is not a kind of rule, or lacks its value");
    }
  }
  return grammar;
}

std::string lines(const std::set<std::string>& words) {
  std::string text;
  for (const std::string& word : words) text += word + '\n';
  return text;
}

}  // namespace glyph::generator
