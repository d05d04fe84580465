// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index.h"

/// Looks up words in the search data of the languages, which the build makes from
/// glyphorium/data/sources/search. All words in parameters and results are folded.
namespace glyph::search {

/// Returns true if the word is a stop word in at least one language: "sign", "symbol", "of".
bool isStopWord(std::string_view word);

using Languages = std::vector<const SearchLanguage*>;

/// Returns the languages whose bits are set in `languages`, where bit i stands for index.languages[i]. The
/// result is in the order of searchLanguages.
Languages languagesOf(const Index& index, std::uint32_t languages);

/// Returns true if the word is a function word in one of the languages: a word that only joins other words,
/// such as "with".
bool isFunctionWord(const Languages& languages, std::string_view word);

/// Returns the words of Unicode names that the word may stand for, separated by tabs. Empty if the word has
/// no synonyms.
std::string_view synonymsOf(const SearchLanguage& language, std::string_view word);

/// Returns true if the word may announce a letter, in any language: "letter", "capital", "minuscule".
bool announcesLetter(std::string_view word);

/// Returns the synonyms of the longer words that begin with the text.
std::vector<std::string_view> synonymsOfLongerWords(const SearchLanguage& language, std::string_view text);

/// Returns the possible singulars of the word. They are derived from its ending, so they need not exist.
/// Snowball's stemmers were tried instead of these rules. They did not improve a single query of
/// tests/search/queries.tsv, and up to three queries no longer found their character: the stem of a mistyped
/// word ("butterly") is often the stem of an unrelated word.
std::vector<std::string> singularsOf(const SearchLanguage& language, std::string_view word);

/// Some letters are typed as two or more plain letters, such as "ae" for "ä". Returns the word with each such
/// spelling replaced by the folded letter that it stands for: "ae" by "a". The rules of all languages are
/// used.
std::string withoutTypedSpellings(std::string_view word);

}  // namespace glyph::search
