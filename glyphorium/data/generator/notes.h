// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "glyphorium/data/generator/embedded_image.h"
#include "glyphorium/data/generator/languages.h"
#include "glyphorium/data/generator/name_table.h"

/// The usage notes of characters. The enrichment table contains most of them. The supplementary notes are for
/// characters that have no note in that table.
namespace glyph::generator {

/// The notes of one language, by code point. One line feed begins a line of a list, two begin a paragraph.
using Notes = std::map<char32_t, std::string>;

/// Returns the notes of the language in enrichment/advice/. Empty if there is no such file. Throws
/// SourceError if a note breaks a rule.
Notes tableNotes(const std::filesystem::path& sources, const Language& language, const NameTable& names);

/// Adds the supplementary notes of all languages, which are in notes/, to the image. Throws SourceError if a
/// note breaks a rule, if notes/facts.tsv has no facts for its character, or if the enrichment table has a
/// note for the character in the same language.
void addSupplementaryNotes(const std::filesystem::path& sources, const std::vector<Language>& languages,
                           const NameTable& names, EmbeddedImage& image);

}  // namespace glyph::generator
