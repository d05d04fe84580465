// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// The JSON form of the records: one object each, with the name of the field as key.
/// - Decoding (Glyphorium::getComputedEntitiesFrom(), getAdditionalDataFrom(), loadStructuredUnicodes()): a
///   required key must be there and hold a value of the field's JSON type. An optional key may be missing or
///   null. Unknown keys are ignored.
/// - Encoding: keys stand in field order; absent optional fields are left out.
namespace glyph {

/// The record as one JSON object. Ill-formed UTF-8 in a field is replaced by U+FFFD. Any thread may call it.
GLYPHORIUM_EXPORT std::string encode(const ComputedEntity& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalData& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalDataAdvice& record);
GLYPHORIUM_EXPORT std::string encode(const RawUnicodeEntity& record);

}  // namespace glyph
