// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string_view>

namespace glyph {

/// A string-backed enumeration. `Key` derives from it, declares its cases as static constants and lists them
/// in `allCases()`. Equality and hash are those of the raw value.
template <class Key>
class RawValueKey {
 public:
  constexpr std::string_view rawValue() const { return rawValue_; }

  /// The case of exactly that raw value, letter case included, or nullopt.
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

}  // namespace glyph
