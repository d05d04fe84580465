// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// Hangul syllables. The Unicode Standard computes their names and decompositions from the code points. Any
/// thread may call these functions.
namespace glyph {

bool isHangulSyllable(char32_t codePoint) noexcept;

/// Returns the name of the syllable: "HANGUL SYLLABLE GAG".
std::string hangulName(char32_t syllable);

/// Returns the syllable with this name, or nullopt if there is none. The case of ASCII letters is ignored.
std::optional<char32_t> hangulSyllableNamed(std::string_view name);

/// Returns the canonical decomposition of the syllable: two code points. A syllable with a final consonant
/// gives the syllable without this consonant, then the consonant. Any other syllable gives its initial
/// consonant, then its vowel.
std::u32string hangulDecomposition(char32_t syllable);

}  // namespace glyph
