// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace glyph::search {

/// Returns the words that people use for a letter, separated by spaces: "e grave" for "LATIN SMALL LETTER E
/// WITH GRAVE", "greek capital alpha". Empty if the name is not that of a letter. The word "small" is left
/// out, because people say "e grave" for a small letter.
std::string letterWords(std::string_view name);

/// Returns words that describe what a letter with marks looks like: "i two dots points above over top" for
/// "LATIN SMALL LETTER I WITH DIAERESIS". Empty if the name is not that of a letter with a known mark.
std::string letterLook(std::string_view name);

}  // namespace glyph::search
