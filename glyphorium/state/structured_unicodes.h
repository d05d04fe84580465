// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"

namespace glyph {

/// The decoded name table, for the host. Empty until loadStructuredUnicodes() fills it; the library itself
/// never reads it. Its creation is safe from several threads; use it from one thread at a time. It lives
/// until the process ends.
GLYPHORIUM_EXPORT std::vector<RawUnicodeEntity>& structuredUnicodes();

/// Decodes structuredUnicodeJSON() and replaces the content of structuredUnicodes(). On a decoding error
/// prints the error as one diagnostic line and leaves the list unchanged.
GLYPHORIUM_EXPORT void loadStructuredUnicodes();

}  // namespace glyph
