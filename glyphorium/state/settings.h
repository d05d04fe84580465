// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "glyphorium/export.h"
#include "glyphorium/state/settings_keys.h"

namespace glyph {

/// Settings of the user that are no choice of characters. Every read asks settingsStore(), every write is
/// durable when it returns. A stored value of another type reads as the default; no read writes anything.
struct GLYPHORIUM_EXPORT EntityUserData {
  /// Whether added characters go into the desktop's search index by themselves; true unless the user said no.
  static bool useSpotlightExtension();

  /// Stores the choice; adds nothing to the index and removes nothing from it.
  static void setUseSpotlightExtension(bool use);

  /// Changes the choice by one read and one write: `modify…([](bool& use) { use = !use; })`.
  static void modifyUseSpotlightExtension(const std::function<void(bool&)>& change);
};

}  // namespace glyph
