// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "glyphorium/search/index.h"

namespace glyph::search {

/// Returns the languages to search, as a bit mask of Index::languages. These are the wanted languages (BCP 47
/// tags; the region does not count), English, and the empty language of texts in no language.
std::uint32_t languageBits(const Index& index, const std::vector<std::string>& wanted);

/// Returns for each document (character) 1 if it is in the wanted groups, otherwise 0. The result is indexed
/// by document number. A document must meet both conditions:
/// - `names` is empty, or the document is in a group with one of these exact names.
/// - The document matches each of `typedNames`. These are the names that the user typed after "group:". If a
///   group has the typed name, the document must be in this group. If no group has this name, the typed name
///   is read as beginnings of words: the document must be in a group like "Miscellaneous Symbols" for "misc
///   symb".
/// Letter case and diacritics do not count in `typedNames`.
std::vector<char> docsInGroups(const Index& index, const std::vector<std::string>& names,
                               const std::vector<std::string>& typedNames);

}  // namespace glyph::search
