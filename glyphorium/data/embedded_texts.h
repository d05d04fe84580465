// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// A text constant of the library. All texts are immutable UTF-8 in the read-only data of the library. They
/// need no initialisation, so any thread may read them at any time.
struct EmbeddedText {
  std::string_view constant;  ///< the name of the constant: "latinBasicJson"
  std::string_view group;     ///< the group of its rows; empty if it is not a group table
  std::string_view text;
  std::size_t rows;  ///< number of its JSON objects
  bool configured;   ///< whether Glyphorium::configure() decodes it into the catalog
};

/// All text constants: the 119 group tables, first the 112 that configure() decodes, in the order of the
/// catalog; then `additionalJson`, `structuredUnicodeJSON` and `sfSymbols`.
GLYPHORIUM_EXPORT std::span<const EmbeddedText> embeddedTexts() noexcept;

/// The text constant with this name, or nullptr. Letter case counts.
GLYPHORIUM_EXPORT const EmbeddedText* embeddedText(std::string_view constant) noexcept;

/// The enrichment table: a JSON array of AdditionalData rows in ascending order of the hex text. Each row has
/// all seven keys. HTML names are named character references of the HTML Standard, chosen by hand if a
/// character has several. Search terms and usage notes are this project's own.
GLYPHORIUM_EXPORT extern const std::string_view additionalJson;

/// The 1,672 SF Symbols of the first symbol library: JSON objects, separated by a comma and a line break,
/// without enclosing brackets.
GLYPHORIUM_EXPORT extern const std::string_view sfSymbols;

}  // namespace glyph
