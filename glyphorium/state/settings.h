// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <functional>

#include "glyphorium/export.h"
#include "glyphorium/state/raw_value_key.h"

namespace glyph {

/// The keys under which EntityUserData is persisted.
class EntityUserDataKey : public RawValueKey<EntityUserDataKey> {
 public:
  static const EntityUserDataKey useSpotlightExtension;  ///< true or false

  static constexpr std::array<EntityUserDataKey, 1> allCases();

 private:
  using RawValueKey::RawValueKey;
};

inline constexpr EntityUserDataKey EntityUserDataKey::useSpotlightExtension{"useSpotlightExtension"};

constexpr std::array<EntityUserDataKey, 1> EntityUserDataKey::allCases() {
  return {useSpotlightExtension};
}

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

template <>
struct std::hash<glyph::EntityUserDataKey> : glyph::EntityUserDataKey::Hash {};
