// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "glyphorium/data/generator/source_file.h"

namespace glyph::generator {

/// A line of languages.tsv.
struct Language {
  std::string code;             ///< BCP 47
  std::size_t annotationTexts;  ///< the number of texts that the language's annotations must have
  bool notesAreCounted;         ///< whether figures.tsv has a number for the language's notes
  /// Characters that a line break must not separate from the text before them (unbreakableBefore) or after
  /// them (unbreakableBehind). Between such a character and that text, notes may have a no-break space or no
  /// space, but not an ordinary space.
  std::u32string unbreakableBefore, unbreakableBehind;
  Place place;
};

/// Returns the languages in the order of languages.tsv. All files of a language are optional. Throws
/// SourceError if the sources contain a file of a language that is not in languages.tsv, because the
/// generator would never read that file.
std::vector<Language> readLanguages(const std::filesystem::path& sources);

/// Returns the path of a language's file in search/. `kind` is the first part of the file name ("synonyms").
/// Returns an empty path if there is no such file.
std::filesystem::path searchFile(const std::filesystem::path& sources, const std::string& kind,
                                 const Language& language);

}  // namespace glyph::generator
