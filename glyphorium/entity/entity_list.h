// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Returns an empty list with memory for `count` entities. The kernel provides this memory in one step if it
/// can. Otherwise it would provide it page by page while the list is filled, which takes longer than the
/// filling itself. Any thread may call this function.
std::vector<Entity> entityListFor(std::size_t count);

}  // namespace glyph
