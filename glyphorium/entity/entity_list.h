// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <vector>

#include "glyphorium/entity/records.h"

namespace glyph {

/// Returns an empty list with memory for `count` entities. If possible, the kernel provides all pages of
/// this memory at once. Otherwise it provides each page when the page is first written, which takes longer
/// than filling the list. Any thread may call this function.
std::vector<Entity> entityListFor(std::size_t count);

}  // namespace glyph
