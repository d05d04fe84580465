// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "glyphorium/export.h"

namespace glyph {

/// The name of a notification. Any text can be a name. The separate type prevents mixing up the name and the
/// object of a notification. Texts convert to NotificationName implicitly. Names are declared as constants of
/// type std::string_view.
class NotificationName {
 public:
  template <std::convertible_to<std::string_view> Text>
  NotificationName(const Text& rawValue) : rawValue_(std::string_view(rawValue)) {}

  const std::string& rawValue() const { return rawValue_; }

  friend bool operator==(const NotificationName&, const NotificationName&) = default;

 private:
  std::string rawValue_;
};

/// A message to the observers of `name`. `object` is a text whose meaning depends on the name; it may be
/// absent.
struct Notification {
  NotificationName name;
  std::optional<std::string> object{};
};

/// The registration of one observer. The registration ends when the token is reset or destroyed, or when
/// another token is assigned to it. This may happen on any thread, and also inside the observer. The token
/// may exist longer than its center. A token that was default-constructed or moved from has no registration.
///
/// After the registration has ended, the observer is not called again. A call that has already begun on
/// another thread continues to its end.
class GLYPHORIUM_EXPORT NotificationToken {
 public:
  NotificationToken() = default;
  NotificationToken(NotificationToken&&) noexcept = default;
  NotificationToken& operator=(NotificationToken&& other) noexcept;
  ~NotificationToken() { reset(); }

  void reset() noexcept;

 private:
  friend class NotificationCenter;
  struct Observer;
  struct Registry;
  NotificationToken(std::weak_ptr<Registry> registry, std::weak_ptr<Observer> observer)
      : registry_(std::move(registry)), observer_(std::move(observer)) {}

  std::weak_ptr<Registry> registry_;
  std::weak_ptr<Observer> observer_;
};

/// Delivers notifications to observers. post() calls the observers on the calling thread, in the order of
/// their registration, and returns after the last call. All functions may be called from any thread and from
/// inside an observer, because no lock is held while an observer runs.
class GLYPHORIUM_EXPORT NotificationCenter {
 public:
  using Callback = std::function<void(const Notification&)>;

  /// Returns the center to which the library posts. This center exists until the process ends.
  static NotificationCenter& defaultCenter();

  NotificationCenter();
  ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Registers an observer. Every later post() with this name calls `callback`, until the token ends the
  /// registration. A post() that has already begun does not call it. If `callback` is empty, nothing is
  /// registered and the result is an empty token.
  [[nodiscard]] NotificationToken addObserver(NotificationName name, Callback callback);

  /// Calls all observers of the notification's name. If an observer throws an exception, post() prints the
  /// exception as a diagnostic, calls the other observers and does not rethrow it.
  void post(const Notification& notification);

 private:
  std::shared_ptr<NotificationToken::Registry> registry_;
};

}  // namespace glyph
