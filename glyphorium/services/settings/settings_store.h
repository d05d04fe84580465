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

/// A value of any other JSON form than the ones that SettingValue spells out, as its text: null, an object,
/// an array that is not all strings, a whole number beyond 64 bits. It lets a program carry values that
/// others have stored.
struct RawJson {
  std::string text;

  friend bool operator==(const RawJson&, const RawJson&) = default;
};

/// One stored value. A value keeps its type: true, 1, 1.0 and "1" are four different ones.
using SettingValue = std::variant<bool, std::int64_t, double, std::string, std::vector<std::string>, RawJson>;

/// Where the user's settings outlive the process. Every operation may be called from any thread and throws
/// nothing of its own.
class GLYPHORIUM_EXPORT SettingsStore {
 public:
  /// Makes a setting's new value of its present one (nullopt: there is none). nullopt writes nothing.
  using Change = std::function<std::optional<SettingValue>(std::optional<SettingValue>)>;

  virtual ~SettingsStore();

  /// The value stored for the key, asked of the store on every call; nullopt where there is none.
  virtual std::optional<SettingValue> object(std::string_view key) = 0;

  virtual void set(std::string_view key, SettingValue value) = 0;

  /// Whether everything set so far is where it outlives the process.
  virtual bool synchronize() = 0;

  /// Calls `change` once and stores what it returns, as one step: what others set for the key in between is
  /// not lost. `change` may use this store; it should be quick, for it may keep others waiting. What it
  /// throws reaches the caller, and nothing is written. This default is for stores of one thread only: it
  /// reads, sets and synchronizes.
  virtual void update(std::string_view key, const Change& change);

 protected:
  SettingsStore() = default;
  SettingsStore(const SettingsStore&) = default;
  SettingsStore& operator=(const SettingsStore&) = default;
};

/// The store that the library uses: the host's own, else an SqliteSettingsStore, made on first use.
GLYPHORIUM_EXPORT std::shared_ptr<SettingsStore> settingsStore();

/// Puts the host's own store in its place, before first use; nullptr goes back to the default.
GLYPHORIUM_EXPORT void setSettingsStore(std::shared_ptr<SettingsStore> store);

}  // namespace glyph
