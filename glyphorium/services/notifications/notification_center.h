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

/// The name of a notification, a type of its own so that it is not mistaken for the notification's object.
/// Any text may be one; constants are declared as std::string_view and convert.
class NotificationName {
 public:
  template <std::convertible_to<std::string_view> Text>
  NotificationName(const Text& rawValue) : rawValue_(std::string_view(rawValue)) {}

  const std::string& rawValue() const { return rawValue_; }

  friend bool operator==(const NotificationName&, const NotificationName&) = default;

 private:
  std::string rawValue_;
};

/// What is told to the observers of its name.
struct Notification {
  NotificationName name;
  std::optional<std::string> object{};
};

/// The registration of one observer: it ends when the token is reset, assigned to or destroyed, from any
/// thread, also inside the observer itself. The token may outlive its center. A moved-from token and a
/// default one hold no registration.
///
/// From then on the observer is not called any more; a call that another thread has begun before still runs
/// to its end.
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

/// Hands notifications to observers: synchronously, on the posting thread, in the order of registration. All
/// operations may be called from any thread, and from inside an observer: no lock is held while one runs.
class GLYPHORIUM_EXPORT NotificationCenter {
 public:
  using Callback = std::function<void(const Notification&)>;

  /// The center on which the library posts. It lives as long as the process.
  static NotificationCenter& defaultCenter();

  NotificationCenter();
  ~NotificationCenter();
  NotificationCenter(const NotificationCenter&) = delete;
  NotificationCenter& operator=(const NotificationCenter&) = delete;

  /// Has every later post of that name call `callback`, until the token ends. A post that is under way does
  /// not reach it. An empty function is not registered.
  [[nodiscard]] NotificationToken addObserver(NotificationName name, Callback callback);

  /// Calls the observers of the notification's name. What an observer throws is printed as a diagnostic and
  /// reaches neither the other observers nor the caller.
  void post(const Notification& notification);

 private:
  std::shared_ptr<NotificationToken::Registry> registry_;
};

}  // namespace glyph
