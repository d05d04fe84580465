// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <set>
#include <string>

namespace glyph::generator {

/// The rules of a language in search/grammar.LANGUAGE.tsv. See SearchLanguage for the form of the texts.
struct SearchGrammar {
  std::set<std::string> stopWords;
  std::set<std::string> functionWords;
  std::string plurals;
  std::string linkingLetters;
  std::string spellings;
  std::string sounds;
  bool headFirst = false;
};

/// Reads a grammar file. Throws SourceError if a line breaks a rule.
SearchGrammar readGrammar(const std::filesystem::path& file);

/// Returns the words in ascending order, each followed by a line feed.
std::string lines(const std::set<std::string>& words);

}  // namespace glyph::generator
