// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// The JSON form of the records. Each record is one JSON object whose keys are the names of the fields.
/// - Decoding (Glyphorium::getComputedEntitiesFrom(), getAdditionalDataFrom(), loadStructuredUnicodes()): a
///   required key must be present, and its value must have the JSON type of the field. An optional key may be
///   missing or null. Unknown keys are ignored.
/// - Encoding: the keys have the order of the fields. Absent optional fields are left out.
namespace glyph {

/// Returns the record as one JSON object. Ill-formed UTF-8 in a field is replaced with U+FFFD. Any thread may
/// call this function.
GLYPHORIUM_EXPORT std::string encode(const ComputedEntity& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalData& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalDataAdvice& record);
GLYPHORIUM_EXPORT std::string encode(const RawUnicodeEntity& record);

}  // namespace glyph
