// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// A text constant of the library. All texts are immutable UTF-8 in the read-only data of the library. The
/// texts need no initialisation, so any thread may read them at any time.
struct EmbeddedText {
  std::string_view constant;  ///< the name of the constant: "latinBasicJson"
  std::string_view group;     ///< the group of the rows; empty if the text is not a group table
  std::string_view text;
  std::size_t rows;  ///< number of JSON objects in the text
  bool configured;   ///< whether Glyphorium::configure() decodes the text into the catalog
};

/// Returns all text constants. First come the 119 group tables, then `additionalJson`,
/// `structuredUnicodeJSON` and `sfSymbols`. The first 112 group tables are those that configure() decodes, in
/// the order of the catalog.
GLYPHORIUM_EXPORT std::span<const EmbeddedText> embeddedTexts() noexcept;

/// Returns the text constant with exactly this name (case-sensitive). Returns nullptr if there is no such
/// constant.
GLYPHORIUM_EXPORT const EmbeddedText* embeddedText(std::string_view constant) noexcept;

/// The enrichment table: a JSON array of AdditionalData rows in ascending order of the hex text. Each row has
/// all seven keys. HTML names are named character references of the HTML Standard. If a character has several
/// references, one was chosen by hand. This project wrote the search terms and the usage notes.
GLYPHORIUM_EXPORT extern const std::string_view additionalJson;

/// The 1,672 SF Symbols of the first symbol library: JSON objects, separated by a comma and a line break,
/// without enclosing brackets.
GLYPHORIUM_EXPORT extern const std::string_view sfSymbols;

}  // namespace glyph
