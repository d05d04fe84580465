// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/settings_store.h"

#include <mutex>
#include <utility>

#include "glyphorium/services/settings/sqlite_settings_store.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Current {
  std::mutex mutex;
  std::shared_ptr<SettingsStore> store;
};

Current& current() {
  static NeverDestroyed<Current> instance;
  return *instance;
}

}  // namespace

SettingsStore::~SettingsStore() = default;

void SettingsStore::update(std::string_view key, const Change& change) {
  if (std::optional<SettingValue> value = change(object(key))) {
    set(key, *std::move(value));
    synchronize();
  }
}

std::optional<std::string> SettingsStore::readFailure(std::string_view) {
  return std::nullopt;
}

std::shared_ptr<SettingsStore> settingsStore() {
  // Destroys the store at the end of the process. The destructor of the store saves the remaining values
  // and closes the file, and SQLite then deletes its log. Code that uses settings even later creates a new
  // store.
  static const struct AtExit {
    ~AtExit() { setSettingsStore(nullptr); }
  } atExit;
  const std::lock_guard lock(current().mutex);
  if (!current().store) current().store = std::make_shared<SqliteSettingsStore>();
  return current().store;
}

void setSettingsStore(std::shared_ptr<SettingsStore> store) {
  const std::lock_guard lock(current().mutex);
  current().store.swap(store);  // the old store is destroyed after the lock is released
}

}  // namespace glyph
