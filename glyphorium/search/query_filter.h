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

/// Returns for each document whether it is in the wanted groups. The result is indexed by document number.
/// A document must meet both conditions:
/// - `names` is empty, or the document is in a group with one of these exact names.
/// - For each typed name, the document is in a group with that name. If there is no such group, the document
///   is in a group whose name has, for each typed word, a word that begins with it.
/// Typed names are compared without letter case and diacritics.
std::vector<char> docsInGroups(const Index& index, const std::vector<std::string>& names,
                               const std::vector<std::string>& typedNames);

}  // namespace glyph::search
