// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// One text constant of the library. All texts are UTF-8 and immutable, stand in the library's read-only
/// image and need no initialisation.
struct EmbeddedText {
  std::string_view constant;  ///< the name of the constant, "latinBasicJson"
  std::string_view group;     ///< the group of its rows; empty for what is no group table
  std::string_view text;
  std::size_t rows;  ///< how many JSON objects it holds
  bool configured;   ///< whether Glyphorium::configure() decodes it into the catalog
};

/// All of them: the 119 group tables, first the 112 that are configured, in the catalog's order; then
/// `additionalJson`, `structuredUnicodeJSON` and `sfSymbols`.
GLYPHORIUM_EXPORT std::span<const EmbeddedText> embeddedTexts() noexcept;

/// The text of that constant's name (case-sensitive), or nullptr.
GLYPHORIUM_EXPORT const EmbeddedText* embeddedText(std::string_view constant) noexcept;

/// The enrichment table: a JSON array of AdditionalData rows in ascending order of the hex text, every row
/// with all seven keys. HTML names are those of the HTML Standard's named character references, chosen by
/// hand where it gives several; search terms and usage notes are this project's.
GLYPHORIUM_EXPORT extern const std::string_view additionalJson;

/// A JSON fragment: the 1,672 SF Symbols of the first symbol library, objects separated by a comma and a line
/// break, without enclosing brackets.
GLYPHORIUM_EXPORT extern const std::string_view sfSymbols;

}  // namespace glyph
