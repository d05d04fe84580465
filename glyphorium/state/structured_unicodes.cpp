// SPDX-License-Identifier: MIT
#include "glyphorium/state/structured_unicodes.h"

#include "glyphorium/data/name_table.h"
#include "glyphorium/entity/decoding.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {

std::vector<RawUnicodeEntity>& structuredUnicodes() {
  static NeverDestroyed<std::vector<RawUnicodeEntity>> entries;
  return *entries;
}

void loadStructuredUnicodes() {
  if (auto entries = decodeOrReport<RawUnicodeEntity>(structuredUnicodeJSON())) {
    structuredUnicodes() = std::move(*entries);
  }
}

}  // namespace glyph
