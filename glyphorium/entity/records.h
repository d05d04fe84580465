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

/// The value records in which every character travels through the catalog. Hosts know the nested ones by
/// their names in the catalog type, Glyphorium::Entity and so on. No record checks or normalises what it
/// holds.
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

  /// An entity with a copy of this record and without enrichment.
  Entity generateEntity() const;
};

/// A short usage note in one language.
struct AdditionalDataAdvice {
  std::string lang;  ///< lower-case language code: "en", "de", "fr", "it", "es"
  std::string text;
};

/// What the enrichment table adds to a code point. An empty text is a present value.
struct GLYPHORIUM_EXPORT AdditionalData {
  std::string hex;
  std::optional<std::string> betterName;  ///< wins over the table's name where it is not empty
  std::optional<std::string> htmlNamed;   ///< named character reference, "&amp;"
  std::optional<std::string> imageName;   ///< names an image that the host supplies
  std::optional<std::vector<std::string>> searchTerms;
  std::optional<bool> needsSerifs;  ///< a font with serifs shows it better
  std::vector<AdditionalDataAdvice> advice;

  /// The usage note in the first of preferredLanguages(), compared lower-cased and exactly with the notes'
  /// languages, else the English one, else none.
  std::optional<std::string> localizedAdvice() const;
};

/// One catalog entry: a character and its enrichment, if it has any.
struct GLYPHORIUM_EXPORT Entity {
  ComputedEntity computed;
  BoxedOptional<AdditionalData> additional;  ///< fewer than one entity in eight has any

  /// The name to show: the enrichment's better name where it has one, else the table's name.
  std::string name() const;

  /// The Unicode escape of a string literal, "\u{1f600}", with the hex code as stored.
  std::string swiftDecimal() const;

  /// All by which the entity can be searched, in lower case, each piece followed by one blank: name, hex,
  /// decimal, both HTML references, group, symbol and, with enrichment, its search terms and its HTML name.
  std::string searchString() const;
};

/// A bare code point of the host's, to be turned into a record.
struct GLYPHORIUM_EXPORT Unicode {
  std::string hex;

  Unicode() = default;
  explicit Unicode(std::string hexCode) : hex(std::move(hexCode)) {}

  /// A record with all code forms, without name and group.
  ComputedEntity computedEntity() const;
};

/// One row of the Unicode name table.
struct RawUnicodeEntity {
  std::string hex;  ///< upper case, at least four digits
  std::string name;
  bool isSFSymbol = false;
};

/// Entities and their records are equal, and hash alike, exactly when their hex codes are equal byte for
/// byte. A set therefore keeps each code point once, whatever groups it stands in.
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
