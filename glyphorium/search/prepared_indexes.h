// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"

namespace glyph::search {

/// Returns the index of the unchanged catalog, which is part of the library.
const Index& catalogIndex();

/// Returns the index of the supplement, which is part of the library: see supplement_indexing.h.
const Index& supplementIndex();

}  // namespace glyph::search
