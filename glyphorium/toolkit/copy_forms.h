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
  std::string_view identifier;  ///< "html-hex"; used in settings, options and actions, so it never changes
  std::string_view separator;   ///< separates the forms of several characters

  /// Returns this form of one character, or nullopt if the character does not have this form. Any thread may
  /// call this function.
  std::optional<std::string> (*text)(const Entity& entity);
};

/// Returns all forms, in the order in which they are shown:
/// - "character": the symbol itself;
/// - "hex": "2192"; "decimal": "8594"; "code-point": "U+2192";
/// - "html": the HTML name, "&rarr;", if the catalog has an HTML name for the character;
/// - "html-hex": "&#x2192;"; "html-decimal": "&#8594;";
/// - "swift": "\u{2192}", the escape of a string literal;
/// - "utf-8": "E2 86 92"; "utf-16": "2192"; "utf-32": "00002192"; bytes or units in hexadecimal digits;
/// - "c": "\u2192", or an octal escape below U+00A0; "javascript": "\u2192", "\u{1F600}"; "json" and "java":
///   "\u2192", "\uD83D\uDE00"; "python": "\u2192", "\U0001F600"; "rust": "\u{2192}";
/// - "css": "\002192", always six digits, so that no blank is needed after them; "url": "%E2%86%92";
/// - "octal-escape": "\342\206\222", the bytes of UTF-8 for printf, shells and old languages;
/// - "swiftui", "uikit": the source line that shows the symbol; only for SF Symbols.
/// For a character of several code points (a hex list, see CodeFormats), the numeric forms contain the number
/// of each code point in order. The list and its texts live until the program ends.
GLYPHORIUM_EXPORT std::span<const CopyForm> copyForms() noexcept;

/// Returns the form with exactly this identifier, or nullptr if there is no such form.
GLYPHORIUM_EXPORT const CopyForm* copyForm(std::string_view identifier) noexcept;

}  // namespace glyph
