// SPDX-License-Identifier: MIT
#include "glyphorium/services/settings/sqlite_settings_store.h"

#include <functional>
#include <map>
#include <mutex>
#include <set>
#include <utility>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/services/settings/setting_json.h"
#include "glyphorium/services/settings/settings_database.h"

namespace glyph {

using Outcome = SettingsDatabase::Outcome;

struct SqliteSettingsStore::Impl {
  explicit Impl(std::filesystem::path file) : database(std::move(file)) {}

  // A value that is not on the disk yet.
  struct Unsaved {
    std::string json;
    // It was made of the setting's present value while that could not be read.
    bool blind;
  };
  struct Present {
    std::optional<std::string> json;
    bool blind;
  };

  // Holds the lock. What there is to tell is told after it: the sink is the host's code. The outermost one,
  // which an exception may end, leaves no transaction open that others would have to wait for.
  class Session {
   public:
    explicit Session(Impl& impl) : impl_(impl) {
      impl_.mutex.lock();
      ++impl_.sessions;
    }
    ~Session() {
      std::vector<std::string> untold;
      if (--impl_.sessions == 0) {
        untold.swap(impl_.lines);
        impl_.updating = false;
        impl_.database.rollback();
      }
      impl_.mutex.unlock();
      for (const std::string& line : untold) printDiagnostic(line);
    }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

   private:
    Impl& impl_;
  };

  Present present(const std::string& key);
  bool begin();
  void save();
  Outcome writeUnsaved();
  bool put(const std::string& key, const SettingValue& value, bool blind);
  void tell(std::string line);
  std::string location() const;

  std::recursive_mutex mutex;  // a change may use the store
  SettingsDatabase database;
  std::map<std::string, Unsaved> unsaved;
  bool updating = false;
  int sessions = 0;
  std::set<std::string> told;  // since the last write that succeeded
  std::vector<std::string> lines;
};

void SqliteSettingsStore::Impl::tell(std::string line) {
  if (told.insert(line).second) lines.push_back(std::move(line));
}

std::string SqliteSettingsStore::Impl::location() const {
  return database.file().empty() ? std::string("Settings") : "Settings in " + database.file().string();
}

SqliteSettingsStore::Impl::Present SqliteSettingsStore::Impl::present(const std::string& key) {
  if (const auto found = unsaved.find(key); found != unsaved.end()) {
    return {found->second.json, found->second.blind};
  }
  std::string json;
  switch (database.read(key, json)) {
    case Outcome::done:
      return {std::move(json), false};
    case Outcome::absent:
      break;
    case Outcome::damaged:
      tell(location() + " are damaged and read as empty: " + database.error());
      return {std::nullopt, true};
    case Outcome::failed:
      tell(location() + " cannot be read: " + database.error());
      return {std::nullopt, true};
  }
  return {std::nullopt, false};
}

bool SqliteSettingsStore::Impl::put(const std::string& key, const SettingValue& value, bool blind) {
  if (auto json = settingToJson(value)) {
    unsaved.insert_or_assign(key, Unsaved{*std::move(json), blind});
    return true;
  }
  tell("Setting '" + key + "' is not set: its value is no JSON");
  return false;
}

// Begins a transaction, in a new file where the one in place is damaged.
bool SqliteSettingsStore::Impl::begin() {
  Outcome begun = Outcome::failed;
  for (int attempt = 0; attempt < 3; ++attempt) {
    begun = database.begin();
    if (begun == Outcome::done) return true;
    database.rollback();
    if (begun != Outcome::damaged) break;
    std::filesystem::path name;
    begun = database.putAside(name);
    if (begun != Outcome::done) break;
    if (!name.empty()) tell("The damaged settings are kept in " + name.string());
  }
  tell(location() + " cannot be saved and last only until the program ends: " + database.error());
  return false;
}

Outcome SqliteSettingsStore::Impl::writeUnsaved() {
  for (auto item = unsaved.begin(); item != unsaved.end();) {
    const auto& [key, value] = *item;
    if (value.blind) {
      std::string stored;
      const Outcome found = database.read(key, stored);
      if (found == Outcome::done) {
        // It would replace a value that it does not take into account.
        tell("Setting '" + key + "' is as stored again: it could not be read when it was changed");
        item = unsaved.erase(item);
        continue;
      }
      if (found != Outcome::absent) return found;
    }
    if (const Outcome written = database.write(key, value.json); written != Outcome::done) return written;
    ++item;
  }
  return database.commit();
}

// Ends the transaction with all unsaved values written, or keeps them.
void SqliteSettingsStore::Impl::save() {
  for (int attempt = 0; attempt < 3; ++attempt) {
    const Outcome written = writeUnsaved();
    if (written == Outcome::done && !database.moved()) {
      unsaved.clear();
      told.clear();
      return;
    }
    database.rollback();
    if (written == Outcome::failed) break;
    // Damaged, or another process has put the file aside meanwhile: the values belong into the new one.
    if (!begin()) return;
  }
  database.rollback();
  tell(location() + " cannot be saved and last only until the program ends: " + database.error());
}

SqliteSettingsStore::SqliteSettingsStore() : impl_(std::make_unique<Impl>(std::filesystem::path())) {}

SqliteSettingsStore::SqliteSettingsStore(std::filesystem::path file)
    : impl_(std::make_unique<Impl>(std::move(file))) {}

SqliteSettingsStore::~SqliteSettingsStore() = default;

std::optional<SettingValue> SqliteSettingsStore::object(std::string_view key) {
  const Impl::Session session(*impl_);
  const auto present = impl_->present(std::string(key));
  return present.json ? std::optional(settingFromJson(*present.json)) : std::nullopt;
}

void SqliteSettingsStore::set(std::string_view key, SettingValue value) {
  const Impl::Session session(*impl_);
  if (!impl_->put(std::string(key), value, false)) return;
  // Within a change, the update that called it saves.
  if (!impl_->updating && impl_->begin()) impl_->save();
}

bool SqliteSettingsStore::synchronize() {
  const Impl::Session session(*impl_);
  return impl_->unsaved.empty();
}

void SqliteSettingsStore::update(std::string_view key, const Change& change) {
  const Impl::Session session(*impl_);
  const std::string name(key);
  const bool outermost = !std::exchange(impl_->updating, true);
  auto unsavedBefore = impl_->unsaved;
  try {
    const bool begun = outermost && impl_->begin();
    const auto [json, blind] = impl_->present(name);
    auto changed = change(json ? std::optional(settingFromJson(*json)) : std::nullopt);
    if (changed) impl_->put(name, *changed, blind);
    if (begun && !impl_->unsaved.empty()) impl_->save();
  } catch (...) {
    impl_->unsaved.swap(unsavedBefore);
    throw;
  }
}

}  // namespace glyph
