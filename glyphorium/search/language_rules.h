// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index.h"

/// What the data of the languages (data/sources/search) say of words. All words are folded.
namespace glyph::search {

/// Whether the word need not match, in any language: "sign", "symbol", "of".
bool isStopWord(std::string_view word);

using Languages = std::vector<const SearchLanguage*>;

/// The languages of a bit mask of Index::languages, in the order of searchLanguages.
Languages languagesOf(const Index& index, std::uint32_t languages);

/// Whether the word joins others in one of the languages: "with".
bool isFunctionWord(const Languages& languages, std::string_view word);

/// The words of Unicode names that the word may stand for, separated by tabs.
std::string_view synonymsOf(const SearchLanguage& language, std::string_view word);

/// The words that the word may be a plural of, by its ending only: they need not exist. Snowball's stemmers
/// found none of the listed queries (tests/search/queries.tsv) better than these rules, and lost up to three
/// of them: the stem of a mistyped word ("butterly") is often that of an unrelated one.
std::vector<std::string> singularsOf(const SearchLanguage& language, std::string_view word);

/// The word with the letters that people type as several ("ae" for "ä") as one, by the rules of all
/// languages.
std::string withoutTypedSpellings(std::string_view word);

}  // namespace glyph::search
