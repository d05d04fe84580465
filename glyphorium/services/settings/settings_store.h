// SPDX-License-Identifier: MIT
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// The JSON text of a value for which SettingValue has no other type: null, an object, an array with elements
/// other than strings, or an integer that does not fit into std::int64_t. RawJson lets a program keep values
/// that other programs have stored.
struct RawJson {
  std::string text;

  friend bool operator==(const RawJson&, const RawJson&) = default;
};

/// One stored value. A value keeps its type: true, 1, 1.0 and "1" are four different values.
using SettingValue = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>, RawJson>;

/// Stores the user's settings so that they remain after the process ends. All functions may be called from
/// any thread. The functions do not throw exceptions, except std::bad_alloc and exceptions of the function
/// that update() calls.
class GLYPHORIUM_EXPORT SettingsStore {
 public:
  /// Computes the new value of a setting from its present value. The argument is nullopt if there is no
  /// present value. If the result is nullopt, nothing is written.
  using Change = std::function<std::optional<SettingValue>(std::optional<SettingValue>)>;

  virtual ~SettingsStore();

  /// Returns the value that is stored for the key, or nullopt if there is no value or it cannot be read.
  /// Every call reads the value again.
  virtual std::optional<SettingValue> object(std::string_view key) = 0;

  /// Sets the value of the key. If the value cannot be stored now, it can be stored later, see synchronize().
  virtual void set(std::string_view key, SettingValue value) = 0;

  /// Tries again to store the values that could not be stored before. Returns true if all values that were
  /// set so far are stored permanently.
  virtual bool synchronize() = 0;

  /// Calls `change` once and stores the result. Other threads and processes cannot set a value between these
  /// two steps, so their changes are not lost. `change` runs while the store is locked. It may use this store
  /// on the same thread. It must be quick and must not wait for another thread, because that thread may be
  /// waiting for the store. If `change` throws an exception, nothing is written and the caller receives the
  /// exception. The default implementation calls object(), set() and synchronize() without a lock. A store
  /// that several threads or processes use must override update().
  virtual void update(std::string_view key, const Change& change);

  /// Returns the reason why the last read of the key failed, as a sentence for people: for example damage, a
  /// lock or missing permission. Returns nullopt if the last read succeeded. If object() returned nullopt and
  /// this function also returns nullopt, there is no stored value. The default implementation always returns
  /// nullopt.
  virtual std::optional<std::string> readFailure(std::string_view key);

 protected:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = default;
  SettingsStore& operator=(const SettingsStore&) = default;
};

/// Returns the store that the library uses: the host's own store, or else an SqliteSettingsStore, which is
/// created on first use. At the end of the program the library releases the store, which closes the default
/// store. Settings may still be used after that, in destructors of static objects and in functions registered
/// with atexit(). May be called from any thread.
GLYPHORIUM_EXPORT std::shared_ptr<SettingsStore> settingsStore();

/// Makes the library use the host's own store. Call this function before settings are used. nullptr
/// restores the default store.
GLYPHORIUM_EXPORT void setSettingsStore(std::shared_ptr<SettingsStore> store);

}  // namespace glyph
