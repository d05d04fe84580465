// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the candidates that are similar to a mistyped text, for "did you mean ...?". The most similar
/// candidates come first. Upper and lower case do not matter. A candidate is similar if its edit distance
/// to the text is at most two bytes or at most a third of the length of the text, whichever is more. A
/// candidate that contains the whole text is similar too if the text has at least three bytes. Returns at
/// most `limit` candidates, and an empty list if no candidate is similar. Any thread may call this
/// function.
GLYPHORIUM_EXPORT std::vector<std::string> nearestTexts(std::string_view text,
                                                        const std::vector<std::string>& candidates,
                                                        std::size_t limit = 3);

}  // namespace glyph
