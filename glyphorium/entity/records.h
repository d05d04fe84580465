// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/boxed_optional.h"
#include "glyphorium/export.h"

/// The records that describe characters. They are also members of the catalog type: Glyphorium::Entity and so
/// on. No record checks or normalises its fields.
namespace glyph {

struct Entity;

/// The name of the group of the characters that the user added.
inline constexpr std::string_view customGroup = "custom";

/// One character as a group table describes it.
struct GLYPHORIUM_EXPORT ComputedEntity {
  std::string hex;  ///< the code point in hexadecimal, lower case, at least four digits: "0020", "1f600"
  std::int64_t decimal = 0;  ///< the code point as a number
  std::string htmlHex;       ///< HTML hexadecimal character reference, "&#x20;"
  std::string htmlDecimal;   ///< HTML decimal character reference, "&#32;"
  std::string symbol;        ///< the character itself
  std::string fallbackName;  ///< its name as the table gives it, "Latin Capital Letter A"
  std::string group;         ///< the name of its group, "latin basic"
  std::optional<bool> isSFSymbol;

  /// An entity that has a copy of this record and no enrichment.
  Entity generateEntity() const;
};

/// A short usage note in one language.
struct AdditionalDataAdvice {
  std::string lang;  ///< lower-case language code: "en", "de", "fr", "it", "es"
  std::string text;
};

/// A row of the enrichment table: what is known of a code point beside its group table. An empty text counts
/// as a present value.
struct GLYPHORIUM_EXPORT AdditionalData {
  std::string hex;
  std::optional<std::string> betterName;  ///< shown instead of the table's name unless it is empty
  std::optional<std::string> htmlNamed;   ///< named character reference, "&amp;"
  std::optional<std::string> imageName;   ///< the name of an image that the host supplies
  std::optional<std::vector<std::string>> searchTerms;
  std::optional<bool> needsSerifs;  ///< a font with serifs shows it better
  std::vector<AdditionalDataAdvice> advice;

  /// The usage note in the first language of preferredLanguages(), else the English note, else nullopt. The
  /// language is lower-cased and must then equal the note's.
  std::optional<std::string> localizedAdvice() const;
};

/// One catalog entry: a character and its enrichment, if it has any.
struct GLYPHORIUM_EXPORT Entity {
  ComputedEntity computed;
  BoxedOptional<AdditionalData> additional;  ///< about one entity in eight has one

  /// The name to show: the enrichment's better name unless that is absent or empty, else the table's name.
  std::string name() const;

  /// The escape sequence of a Swift string literal, "\u{1f600}", with the hex code as stored.
  std::string swiftDecimal() const;

  /// The searchable texts of the entity in lower case, with one blank behind each: name, hex, decimal, both
  /// HTML references, group, symbol and, if it has enrichment, its search terms and its HTML name.
  std::string searchString() const;
};

/// A code point or hex list (see CodeFormats) from which to make a record.
struct GLYPHORIUM_EXPORT Unicode {
  std::string hex;

  Unicode() = default;
  explicit Unicode(std::string hexCode) : hex(std::move(hexCode)) {}

  /// A record with all code forms; its name and its group are empty.
  ComputedEntity computedEntity() const;
};

/// One row of the Unicode name table.
struct RawUnicodeEntity {
  std::string hex;  ///< upper case, at least four digits
  std::string name;
  bool isSFSymbol = false;
};

/// Two entities, or two of their records, are equal if their hex codes are equal byte for byte; their hashes
/// follow that. A set therefore keeps each code point once, even if several groups hold it.
inline bool operator==(const ComputedEntity& a, const ComputedEntity& b) {
  return a.hex == b.hex;
}
inline bool operator==(const Entity& a, const Entity& b) {
  return a.computed == b.computed;
}

}  // namespace glyph

template <>
struct std::hash<glyph::ComputedEntity> {
  std::size_t operator()(const glyph::ComputedEntity& entity) const noexcept {
    return std::hash<std::string>()(entity.hex);
  }
};

template <>
struct std::hash<glyph::Entity> {
  std::size_t operator()(const glyph::Entity& entity) const noexcept {
    return std::hash<glyph::ComputedEntity>()(entity.computed);
  }
};
