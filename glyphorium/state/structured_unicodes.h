// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

namespace glyph {

/// Returns the decoded name table, for the host. It is empty until loadStructuredUnicodes() fills it. The
/// library itself never reads it. The first call creates the list; several threads may make this call at
/// once. Use the list from one thread at a time. It lives until the process ends.
GLYPHORIUM_EXPORT std::vector<RawUnicodeEntity>& structuredUnicodes();

/// Decodes structuredUnicodeJSON() and replaces the content of structuredUnicodes(). On a decoding error,
/// prints one diagnostic line and leaves the list unchanged.
GLYPHORIUM_EXPORT void loadStructuredUnicodes();

}  // namespace glyph
