// SPDX-License-Identifier: MIT
#pragma once

#include <string>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

/// The JSON form of the records. A key is the name of its field. When decoding (see
/// Glyphorium::getComputedEntitiesFrom() and its likes), a required key must hold a value of the field's JSON
/// type; an optional key may be missing or null; other keys are ignored. When encoding, the keys stand in
/// field order and absent optional fields are left out.
namespace glyph {

/// One JSON object. Ill-formed UTF-8 in a field is written as U+FFFD.
GLYPHORIUM_EXPORT std::string encode(const ComputedEntity& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalData& record);
GLYPHORIUM_EXPORT std::string encode(const AdditionalDataAdvice& record);
GLYPHORIUM_EXPORT std::string encode(const RawUnicodeEntity& record);

}  // namespace glyph
