// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// Returns the value stored for the key, or nullopt. If `verbose` is true, prints one diagnostic line with
/// the result.
std::optional<SettingValue> loadFromUserDefaults(std::string_view key, bool verbose);

/// Stores the value and synchronizes the store. If `verbose` is true, prints one diagnostic line with the
/// saved value.
void saveToUserDefaults(const SettingValue& value, std::string_view key, bool verbose);

/// Returns `stored` as a T. Returns the default value if `stored` is empty or has another type.
template <class T>
T valueOr(const std::optional<SettingValue>& stored, T defaultValue) {
  const T* const value = stored ? std::get_if<T>(&*stored) : nullptr;
  return value ? *value : std::move(defaultValue);
}

/// Stores a copy of the value under another key: the first unused key of "<key>.damaged", "<key>.damaged2"
/// and so on. Returns that key.
std::string keepUnderAnotherKey(SettingsStore& store, std::string_view key, const SettingValue& value);

/// Prints one diagnostic line: the value of `key` was copied to the key `keptAs` by keepUnderAnotherKey().
void printKeptValue(std::string_view key, const std::string& keptAs);

/// Changes the stored value of the key by one call of SettingsStore::update(). `change(T&)` receives the
/// stored value, or the default if there is no stored value of type T. If `change` returns false, the store
/// stays unchanged. If a stored value of another type would be overwritten, it is first copied with
/// keepUnderAnotherKey(). Returns the result of `change`.
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

/// Returns the stored names of the displayed groups, or ["custom"] if no list of names is stored.
std::vector<std::string> storedDisplayedGroups();

/// Returns the stored codes of the added characters. Empty if no list of codes is stored.
std::vector<std::string> storedCustomCodes();

}  // namespace glyph
