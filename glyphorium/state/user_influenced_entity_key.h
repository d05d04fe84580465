// SPDX-License-Identifier: MIT
#pragma once

#include <array>

#include "glyphorium/state/raw_value_key.h"

namespace glyph {

/// The keys under which the catalog's part of the user's choices is persisted; hosts know it as
/// Glyphorium::UserInfluencedEntityKey.
class UserInfluencedEntityKey : public RawValueKey<UserInfluencedEntityKey> {
 public:
  static const UserInfluencedEntityKey displayedGroups;      ///< array of group names
  static const UserInfluencedEntityKey customAddedEntities;  ///< array of hexadecimal codes

  static constexpr std::array<UserInfluencedEntityKey, 2> allCases();

 private:
  using RawValueKey::RawValueKey;
};

inline constexpr UserInfluencedEntityKey UserInfluencedEntityKey::displayedGroups{"displayedGroups"};
inline constexpr UserInfluencedEntityKey UserInfluencedEntityKey::customAddedEntities{"customAddedEntities"};

constexpr std::array<UserInfluencedEntityKey, 2> UserInfluencedEntityKey::allCases() {
  return {displayedGroups, customAddedEntities};
}

}  // namespace glyph

template <>
struct std::hash<glyph::UserInfluencedEntityKey> : glyph::UserInfluencedEntityKey::Hash {};
