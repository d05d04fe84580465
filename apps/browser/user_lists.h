// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace browser {

/// A list of hex codes (or hex lists) in the settings, with the newest code first.
class UserList {
 public:
  /// `key` is the key in glyph::settingsStore(). It must live as long as the list. The list keeps at most
  /// `limit` codes.
  constexpr UserList(std::string_view key, std::size_t limit) : key_(key), limit_(limit) {}

  /// Returns the codes. Every call reads the settings.
  std::vector<std::string> codes() const;

  /// Moves the code to the beginning of the list, or inserts it there.
  void putFirst(const std::string& code) const;

  /// Removes the code if it is in the list, otherwise inserts it at the beginning.
  void toggle(const std::string& code) const;

  void clear() const;

 private:
  std::string_view key_;
  std::size_t limit_;
};

inline constexpr UserList favouriteCharacters{"favouriteCharacters", 2'000};
inline constexpr UserList recentlyCopiedCharacters{"recentlyCopiedCharacters", 60};

}  // namespace browser
