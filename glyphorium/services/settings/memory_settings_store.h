// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <map>
#include <mutex>
#include <utility>

#include "glyphorium/services/settings/settings_store.h"

namespace glyph {

/// A store that keeps the settings in memory, so they are lost when the store is destroyed. For tests, and
/// for hosts that must not leave files on the disk. Thread-safe.
class MemorySettingsStore final : public SettingsStore {
 public:
  std::optional<SettingValue> object(std::string_view key) override {
    const std::lock_guard lock(mutex_);
    const auto found = values_.find(key);
    return found == values_.end() ? std::nullopt : std::optional(found->second);
  }

  void set(std::string_view key, SettingValue value) override {
    const std::lock_guard lock(mutex_);
    values_.insert_or_assign(std::string(key), std::move(value));
  }

  bool synchronize() override { return true; }

  void update(std::string_view key, const Change& change) override {
    const std::lock_guard lock(mutex_);
    SettingsStore::update(key, change);
  }

 private:
  std::recursive_mutex mutex_;  // recursive, because the function that update() calls may use this store
  std::map<std::string, SettingValue, std::less<>> values_;
};

}  // namespace glyph
