// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the text with its XML references replaced in one pass ("&amp;amp;" gives "&amp;"). The references
/// are decimal ("&#32;") and hexadecimal ("&#x20;", "&#X20;") character references and the five predefined
/// entities amp, lt, gt, quot and apos. All other text stays unchanged. This includes references with another
/// entity name, without ";", without digits, or with a value that is not a Unicode scalar value. Any thread
/// may call this function.
GLYPHORIUM_EXPORT std::string xmlUnescaped(std::string_view text);

}  // namespace glyph
