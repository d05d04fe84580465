// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "glyphorium/search/index.h"

namespace glyph::search {

/// The languages of which words are looked at, as a bit mask of Index::languages: the wanted ones (BCP 47, a
/// region does not count), English, and that of texts in no language.
std::uint32_t languageBits(const Index& index, const std::vector<std::string>& wanted);

/// By doc, whether it is in one of the groups with these exact names (in any if there are no names) and in
/// the groups of each typed name: those that are called so or, if there is none, those that have words with
/// these beginnings in their names. Letter case and diacritics do not count in typed names.
std::vector<char> docsInGroups(const Index& index, const std::vector<std::string>& names,
                               const std::vector<std::string>& typedNames);

}  // namespace glyph::search
