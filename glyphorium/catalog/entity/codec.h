// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/entity/records.h"
#include "glyphorium/platform/export.h"

/// The JSON form of the records. A key is the name of its field. When decoding, a required key must hold a
/// value of the field's JSON type; an optional key may be missing or null; other keys are ignored. When
/// encoding, the keys stand in field order and absent optional fields are left out.
namespace glyph {

/// Decodes UTF-8 JSON arrays, one after the other, with one parser. Record is ComputedEntity, AdditionalData
/// or RawUnicodeEntity. An embedded text is parsed where it lies, any other is copied once.
class TableDecoder {
 public:
  TableDecoder();
  ~TableDecoder();
  TableDecoder(const TableDecoder&) = delete;
  TableDecoder& operator=(const TableDecoder&) = delete;

  /// Appends the records of `json` (for Entity: entities with ComputedEntity records, not enriched) to
  /// `records` and returns an empty text, or leaves them as they were and returns one line that says what is
  /// wrong: one faulty row fails the whole array.
  template <class Record>
  std::string append(std::string_view json, std::vector<Record>& records);

 private:
  struct Parser;
  std::unique_ptr<Parser> parser_;
};

/// The records of one JSON array; on an error prints it as one diagnostic line and returns nothing.
template <class Record>
std::optional<std::vector<Record>> decodeOrReport(std::string_view json);

/// One JSON object. Ill-formed UTF-8 in a field is written as U+FFFD.
GLYPHORIUM_EXPORT std::string encode(const ComputedEntity& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalData& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalDataAdvice& record);
GLYPHORIUM_EXPORT std::string encode(const RawUnicodeEntity& record);

}  // namespace glyph
