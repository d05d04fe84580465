// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// The value stored for the key. With `verbose`, one diagnostic line says what was found.
std::optional<SettingValue> loadFromUserDefaults(std::string_view key, bool verbose);

/// Stores the value and has the store write it through. With `verbose`, one diagnostic line says what was
/// saved.
void saveToUserDefaults(SettingValue value, std::string_view key, bool verbose);

/// The stored value as that type, or the default where there is none or one of another type.
template <class T>
T valueOr(const std::optional<SettingValue>& stored, T defaultValue) {
  const T* const value = stored ? std::get_if<T>(&*stored) : nullptr;
  return value ? *value : std::move(defaultValue);
}

/// The names of the displayed groups as stored, ["custom"] where none are.
std::vector<std::string> storedDisplayedGroups();

}  // namespace glyph
