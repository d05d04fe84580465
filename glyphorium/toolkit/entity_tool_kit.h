// SPDX-License-Identifier: MIT
#pragma once

#include <vector>

#include "glyphorium/catalog/entity/records.h"
#include "glyphorium/platform/export.h"
#include "glyphorium/toolkit/code_formats.h"

namespace glyph {

/// The stateless toolkit: the code formats, and what it does with entities.
class GLYPHORIUM_EXPORT EntityToolKit : public CodeFormats {
 public:
  /// Name completion: the records with `fallbackName` and `isSFSymbol` from the first entry of the Unicode
  /// name table with their hex code (letter case does not count). A record without an entry keeps what it
  /// has. Left out of the result are records then named "<control>" or without a name, and those of the group
  /// "Private Use Area". May run on any thread.
  std::vector<ComputedEntity> addNames(std::vector<ComputedEntity> to) const;
};

/// The shared toolkit.
GLYPHORIUM_EXPORT EntityToolKit& toolKit();

}  // namespace glyph
