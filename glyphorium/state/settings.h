// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

#include "glyphorium/export.h"
#include "glyphorium/state/settings_keys.h"

namespace glyph {

/// The user's settings other than the displayed groups and the added characters. Every function reads or
/// writes settingsStore(). Every write is durable when the function returns. If a stored value has the
/// wrong type, the getter returns the default. Getters never write.
struct GLYPHORIUM_EXPORT EntityUserData {
  /// Returns whether characters that the user adds are put into the desktop's search index automatically. The
  /// default is true.
  static bool useSpotlightExtension();

  /// Stores the choice. Does not add items to the index or remove items from it.
  static void setUseSpotlightExtension(bool use);

  /// Changes the choice by one read and one write. For example, `[](bool& use) { use = !use; }` inverts the
  /// choice.
  static void modifyUseSpotlightExtension(const std::function<void(bool&)>& change);
};

}  // namespace glyph
