// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// Returns the candidates that the user may have meant by a mistyped text, for "did you mean ...?". The
/// nearest candidates come first. Upper and lower case do not matter. A candidate is near if it differs from
/// the text by at most two bytes or by at most a third of the length of the text, whichever is more. A
/// candidate that contains the whole text is near too if the text has at least three bytes. Returns at most
/// `limit` candidates. Empty if there are no near candidates. Any thread may call this function.
GLYPHORIUM_EXPORT std::vector<std::string> nearestTexts(std::string_view text,
                                                        const std::vector<std::string>& candidates,
                                                        std::size_t limit = 3);

}  // namespace glyph
