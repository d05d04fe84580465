// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The candidates that a mistyped text may stand for, nearest first, for "did you mean ...?". Letter case
/// does not count. Near is what differs by few letters, two or a third of the text, and what holds the whole
/// text, of three bytes or more, as a part. At most `limit`; empty where nothing is near. Any thread may call
/// it.
GLYPHORIUM_EXPORT std::vector<std::string> nearestTexts(std::string_view text,
                                                        const std::vector<std::string>& candidates,
                                                        std::size_t limit = 3);

}  // namespace glyph
