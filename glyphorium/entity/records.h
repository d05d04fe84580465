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
#include "glyphorium/text/record_text.h"

/// The records that describe characters. They can also be named as members of the class Glyphorium, such as
/// Glyphorium::Entity. The records do not check or normalise their fields. They are values: a change of a
/// copy never changes the original.
/// See RecordText for the conversion of the texts to std::string and for their lifetime.
namespace glyph {

struct Entity;

/// The name of the group for the characters that the user added.
inline constexpr std::string_view customGroup = "custom";

/// One character, as a row of a group table describes it.
struct GLYPHORIUM_EXPORT ComputedEntity {
  RecordText hex;  ///< the code point in hexadecimal, lower case, at least four digits: "0020", "1f600"
  std::int64_t decimal = 0;  ///< the code point as a number
  RecordText htmlHex;        ///< HTML hexadecimal character reference, "&#x20;"
  RecordText htmlDecimal;    ///< HTML decimal character reference, "&#32;"
  RecordText symbol;         ///< the character itself
  RecordText fallbackName;   ///< the character's name in the table, "Latin Capital Letter A"
  RecordText group;          ///< the name of the character's group, "latin basic"
  std::optional<bool> isSFSymbol;

  /// Returns an entity with a copy of this record and without enrichment.
  Entity generateEntity() const;
};

/// A short usage note in one language.
struct AdditionalDataAdvice {
  RecordText lang;  ///< lower-case language code: "en", "de", "fr", "it", "es"
  RecordText text;
};

/// A row of the enrichment table: facts about a code point that are not in its group table. An empty text
/// counts as a present value.
struct GLYPHORIUM_EXPORT AdditionalData {
  RecordText hex;
  std::optional<RecordText> betterName;  ///< if not empty, shown instead of the table's name
  std::optional<RecordText> htmlNamed;   ///< named character reference, "&amp;"
  std::optional<RecordText> imageName;   ///< the name of an image that the host supplies
  std::optional<std::vector<RecordText>> searchTerms;
  std::optional<bool> needsSerifs;  ///< whether a font with serifs shows the character better
  std::vector<AdditionalDataAdvice> advice;

  /// Returns the usage note in the first language of preferredLanguages(). Returns the English note if there
  /// is no note in that language, and nullopt if there is no English note either or if preferredLanguages()
  /// is empty. The language is lower-cased before the comparison; it matches a note only if it equals the
  /// note's language exactly.
  std::optional<std::string> localizedAdvice() const;
};

/// One entry of the catalog: a character and its enrichment, if it has an enrichment.
struct GLYPHORIUM_EXPORT Entity {
  ComputedEntity computed;
  BoxedOptional<AdditionalData> additional;  ///< present in about one of eight entities

  /// Returns the name to show: the better name of the enrichment if it is present and not empty, otherwise
  /// the name in the table.
  std::string name() const;

  /// Returns the usage note to show for the character. The note is in the first language of
  /// preferredLanguages(), lower-cased, or, if there is no such note, in English. In each of the two
  /// languages, the note of the enrichment is preferred. If there is none, the library may have a
  /// supplementary note for the hex code. Supplementary notes exist for some 150 characters; they are not
  /// in the tables, and the search does not read them. Returns nullopt if there is no note or if
  /// preferredLanguages() is empty. A line feed in the note begins a line of a list ("• "), two line feeds
  /// begin a paragraph. Any thread may call this function.
  std::optional<std::string> usageNote() const;

  /// Returns the escape sequence of a Swift string literal, "\u{1f600}", with the hex code as stored.
  std::string swiftDecimal() const;

  /// Returns the searchable texts of the entity in lower case. One blank follows each text. The texts are:
  /// name, hex code, decimal number, both HTML references, group, symbol and, if the entity has enrichment,
  /// its search terms and its HTML name.
  std::string searchString() const;
};

/// A hex code or hex list (see CodeFormats) from which a record can be made.
struct GLYPHORIUM_EXPORT Unicode {
  std::string hex;

  Unicode() = default;
  explicit Unicode(std::string hexCode) : hex(std::move(hexCode)) {}

  /// Returns a record with all code forms. The name and the group of the record are empty.
  ComputedEntity computedEntity() const;
};

/// One row of the Unicode name table.
struct RawUnicodeEntity {
  std::string hex;  ///< upper case, at least four digits
  std::string name;
  bool isSFSymbol = false;
};

/// Two entities, or two of their records, are equal if their hex codes are equal byte for byte. The hash
/// depends on the hex code only. Therefore a set contains each code point once, even if several groups have
/// it.
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
    return std::hash<glyph::RecordText>()(entity.hex);
  }
};

template <>
struct std::hash<glyph::Entity> {
  std::size_t operator()(const glyph::Entity& entity) const noexcept {
    return std::hash<glyph::ComputedEntity>()(entity.computed);
  }
};
