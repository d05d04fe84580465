// SPDX-License-Identifier: MIT
#pragma once

#include "glyphorium/search/index.h"

namespace glyph::search {

/// Returns the index of the unchanged catalog. The index is part of the library.
const Index& catalogIndex();

/// Returns the index of the supplement (see supplement_indexing.h). The index is part of the library.
const Index& supplementIndex();

}  // namespace glyph::search
