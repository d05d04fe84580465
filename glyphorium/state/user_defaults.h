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

/// Stores the value and synchronizes the store. With `verbose`, one diagnostic line says what was saved.
void saveToUserDefaults(SettingValue value, std::string_view key, bool verbose);

/// The stored value as that type, or the default if there is none or one of another type.
template <class T>
T valueOr(const std::optional<SettingValue>& stored, T defaultValue) {
  const T* const value = stored ? std::get_if<T>(&*stored) : nullptr;
  return value ? *value : std::move(defaultValue);
}

/// Stores the value of the key once more, under the first free one of "<key>.damaged", "<key>.damaged2" and
/// so on, and returns that name.
std::string keepUnderAnotherKey(SettingsStore& store, std::string_view key, const SettingValue& value);

/// One diagnostic line about a value that keepUnderAnotherKey() has kept.
void printKeptValue(std::string_view key, const std::string& keptAs);

/// Changes the stored value of the key (the default if there is none) by `change(T&)`, as one step of the
/// store, unless that returns false. A stored value of another type would be lost, so it is kept under
/// another key. Returns what `change` returned.
template <class T, class Change>
bool changeUserDefaults(std::string_view key, T defaultValue, Change change) {
  const auto store = settingsStore();
  bool changed = false;
  std::string keptAs;
  store->update(key, [&](const std::optional<SettingValue>& stored) -> std::optional<SettingValue> {
    T value = valueOr(stored, std::move(defaultValue));
    changed = change(value);
    if (!changed) return std::nullopt;
    if (stored && !std::holds_alternative<T>(*stored)) keptAs = keepUnderAnotherKey(*store, key, *stored);
    return SettingValue(std::move(value));
  });
  if (!keptAs.empty()) printKeptValue(key, keptAs);
  return changed;
}

/// The names of the displayed groups as stored, ["custom"] if none are.
std::vector<std::string> storedDisplayedGroups();

/// The codes of the added characters as stored.
std::vector<std::string> storedCustomCodes();

}  // namespace glyph
