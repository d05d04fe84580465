// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// A line of languages.tsv.
struct Language {
  std::string code;  ///< BCP 47
  std::size_t annotationTexts;
  bool notesAreCounted;  ///< by the figures of the enrichment table
  /// Characters with which a line of a note must not be broken: before those of the first text and behind
  /// those of the second one, notes have no-break spaces or none.
  std::u32string unbreakableBefore, unbreakableBehind;
  Place place;
};

/// The languages in the order of languages.tsv. All files of a language are optional. Fails if the sources
/// have a file of another language, which would be ignored.
std::vector<Language> readLanguages(const std::filesystem::path& sources);

/// The file of a kind ("synonyms") and language below search/, or an empty path if there is none.
std::filesystem::path searchFile(const std::filesystem::path& sources, const std::string& kind,
                                 const Language& language);

}  // namespace glyph::generator
