// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

#include "glyphorium/export.h"

namespace glyph {

/// The text with its XML references replaced, in one pass ("&amp;amp;" gives "&amp;"): decimal ("&#32;") and
/// hexadecimal ("&#x20;", "&#X20;") character references and the five predefined entities amp, lt, gt, quot
/// and apos. Everything else stays unchanged: other entity names, a missing ";", no digits, a value
/// that is no Unicode scalar value. Any thread may call it.
GLYPHORIUM_EXPORT std::string xmlUnescaped(std::string_view text);

}  // namespace glyph
