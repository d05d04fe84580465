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

/// The name of a notification. Any text can be a name. It has its own type so that a name and an object
/// cannot be confused. Texts convert to it, and names are declared as constants of type std::string_view.
class NotificationName {
 public:
  template <std::convertible_to<std::string_view> Text>
  NotificationName(const Text& rawValue) : rawValue_(std::string_view(rawValue)) {}

  const std::string& rawValue() const { return rawValue_; }

  friend bool operator==(const NotificationName&, const NotificationName&) = default;

 private:
  std::string rawValue_;
};

/// A message to the observers of a name. `object` is the text that belongs to it, where there is one.
struct Notification {
  NotificationName name;
  std::optional<std::string> object{};
};

/// The registration of one observer. It ends when the token is reset, destroyed or assigned another token.
/// This may happen on any thread, and also inside the observer. The token may live longer than its center. A
/// default token and a token that was moved from hold no registration.
///
/// After the registration has ended no call of the observer begins. A call that another thread has already
/// begun runs to its end.
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

/// Delivers notifications to observers. post() calls them on its own thread, in the order of their
/// registration, and returns after the last one. All functions may be called from any thread and from inside
/// an observer, because no lock is held while an observer runs.
class GLYPHORIUM_EXPORT NotificationCenter {
 public:
  using Callback = std::function<void(const Notification&)>;

  /// The center on which the library posts. It exists until the process ends.
  static NotificationCenter& defaultCenter();

  NotificationCenter();
  ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Registers an observer: every later post of this name calls `callback` until the token ends the
  /// registration. A post that has already begun does not call it. An empty function is not registered.
  [[nodiscard]] NotificationToken addObserver(NotificationName name, Callback callback);

  /// Calls the observers of the notification's name. An exception of an observer is printed as a diagnostic.
  /// The other observers are still called, and post() itself does not throw it.
  void post(const Notification& notification);

 private:
  std::shared_ptr<NotificationToken::Registry> registry_;
};

}  // namespace glyph
