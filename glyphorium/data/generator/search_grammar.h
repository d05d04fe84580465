// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace glyph::generator {

/// What search/grammar.LANGUAGE.tsv says of a language. See SearchLanguage for the form of the texts.
struct SearchGrammar {
  std::set<std::string> stopWords;
  std::set<std::string> functionWords;
  std::string plurals;
  std::string linkingLetters;
  std::string spellings;
  bool headFirst = false;
};

SearchGrammar readGrammar(const std::filesystem::path& file);

/// The words, each with a line feed behind it.
std::string lines(const std::set<std::string>& words);

}  // namespace glyph::generator
