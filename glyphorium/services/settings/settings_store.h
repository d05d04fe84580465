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

/// The JSON text of a value that no other type of SettingValue can hold: null, an object, an array that is
/// not all strings, a whole number beyond 64 bits. It lets a program carry values that others have stored.
struct RawJson {
  std::string text;

  friend bool operator==(const RawJson&, const RawJson&) = default;
};

/// One stored value. A value keeps its type: true, 1, 1.0 and "1" are four different ones.
using SettingValue = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>, RawJson>;

/// Keeps the user's settings beyond the end of the process. Every operation may be called from any thread and
/// throws no exception of its own, except std::bad_alloc.
class GLYPHORIUM_EXPORT SettingsStore {
 public:
  /// Computes a setting's new value from its present one (nullopt: there is none). The result nullopt writes
  /// nothing.
  using Change = std::function<std::optional<SettingValue>(std::optional<SettingValue>)>;

  virtual ~SettingsStore();

  /// The value stored for the key, read anew on every call; nullopt if there is none or it cannot be read.
  virtual std::optional<SettingValue> object(std::string_view key) = 0;

  virtual void set(std::string_view key, SettingValue value) = 0;

  /// Tries again to store what could not be stored before. Returns whether everything set so far is stored
  /// where it outlives the process.
  virtual bool synchronize() = 0;

  /// Calls `change` once and stores the result, as one step: no value that others set meanwhile is lost.
  /// `change` runs while the store is locked. It may use this store, on the same thread; it must be quick,
  /// and must not wait for another thread, which may need the store itself. An exception that it throws
  /// reaches the caller, and nothing is written. This default, which reads, sets and synchronizes, is no
  /// single step: a store for several threads or processes must override it.
  virtual void update(std::string_view key, const Change& change);

  /// Why the last read of the key failed, a sentence for people: damage, a lock, missing permission. nullopt
  /// if it succeeded, so that nullopt from object() means that nothing is stored. This default knows no
  /// failure.
  virtual std::optional<std::string> readFailure(std::string_view key);

 protected:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = default;
  SettingsStore& operator=(const SettingsStore&) = default;
};

/// The store that the library uses: the host's own, or else an SqliteSettingsStore, made on first use. At the
/// end of the program the library lets go of it, which closes the default store; settings may still be used
/// afterwards, in destructors of static objects and in functions registered with atexit.
GLYPHORIUM_EXPORT std::shared_ptr<SettingsStore> settingsStore();

/// Puts the host's own store in its place, before first use; nullptr goes back to the default.
GLYPHORIUM_EXPORT void setSettingsStore(std::shared_ptr<SettingsStore> store);

}  // namespace glyph
