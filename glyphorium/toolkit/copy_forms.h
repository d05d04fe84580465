// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

namespace glyph {

/// A form in which a character can be copied.
struct CopyForm {
  std::string_view identifier;  ///< stable, for settings, options and actions: "html-hex"
  std::string_view separator;   ///< stands between the forms of several characters

  /// The form of one character; nullopt where it has none of this kind. Any thread may call it.
  std::optional<std::string> (*text)(const Entity& entity);
};

/// All forms, in the order to show them:
/// - "character": the symbol itself;
/// - "hex": "2192"; "decimal": "8594"; "code-point": "U+2192";
/// - "html": the name in HTML, "&rarr;", for characters that the catalog gives one;
/// - "html-hex": "&#x2192;"; "html-decimal": "&#8594;";
/// - "swift": "\u{2192}", the escape of a string literal;
/// - "swiftui", "uikit": the source line that shows the symbol, for SF Symbols.
/// Of a character of several code points (a hex list, see CodeFormats) the numbers are those of each code
/// point in order. The list and its texts last as long as the program.
GLYPHORIUM_EXPORT std::span<const CopyForm> copyForms() noexcept;

/// The form of exactly that identifier, or nullptr.
GLYPHORIUM_EXPORT const CopyForm* copyForm(std::string_view identifier) noexcept;

}  // namespace glyph
