// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace glyph {

/// An enumeration whose cases are strings. `Key` derives from this class, declares its cases as static
/// constants and lists them in `allCases()`. Two cases are equal, and have equal hashes, if their strings
/// (raw values) are equal.
template <class Key>
class RawValueKey {
 public:
  constexpr std::string_view rawValue() const { return rawValue_; }

  /// Returns the case with exactly this raw value (upper and lower case differ), or nullopt if there is no
  /// such case.
  static constexpr std::optional<Key> fromRawValue(std::string_view rawValue) {
    for (const Key& key : Key::allCases()) {
      if (key.rawValue() == rawValue) return key;
    }
    return std::nullopt;
  }

  friend constexpr bool operator==(const Key& a, const Key& b) { return a.rawValue() == b.rawValue(); }

  struct Hash {
    std::size_t operator()(const Key& key) const noexcept {
      return std::hash<std::string_view>()(key.rawValue());
    }
  };

 protected:
  explicit constexpr RawValueKey(std::string_view rawValue) : rawValue_(rawValue) {}

 private:
  std::string_view rawValue_;
};

/// The keys under which the catalog stores the user's choices. The class is also available as
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

/// The key under which EntityUserData stores its setting.
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

}  // namespace glyph

template <>
struct std::hash<glyph::UserInfluencedEntityKey> : glyph::UserInfluencedEntityKey::Hash {};

template <>
struct std::hash<glyph::EntityUserDataKey> : glyph::EntityUserDataKey::Hash {};
