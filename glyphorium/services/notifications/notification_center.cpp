// SPDX-License-Identifier: MIT
#include "glyphorium/services/notifications/notification_center.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <vector>

#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {

struct NotificationToken::Observer {
  Observer(NotificationName observed, NotificationCenter::Callback function)
      : name(std::move(observed)), callback(std::move(function)) {}

  const NotificationName name;
  const NotificationCenter::Callback callback;
  // Becomes false when the registration ends. A post() that has already begun may still find the observer in
  // its list.
  std::atomic<bool> registered{true};
};

// A list is never changed, only replaced by a new list. post() can therefore read a list without a lock.
struct NotificationToken::Registry {
  using List = std::vector<std::shared_ptr<Observer>>;

  std::shared_ptr<const List> snapshot() {
    const std::lock_guard lock(mutex);
    return observers;
  }

  // Replaces the list by a copy without the observers whose registration has ended, and with `added` if it is
  // not null. The old list is released after the lock. Releasing the list may destroy a callback, which runs
  // code of the host.
  void renew(std::shared_ptr<Observer> added) {
    std::shared_ptr<const List> before;
    const std::lock_guard lock(mutex);
    auto after = std::make_shared<List>(*observers);
    std::erase_if(*after, [](const auto& observer) { return !observer->registered; });
    if (added) after->push_back(std::move(added));
    before = std::exchange(observers, std::move(after));
  }

  std::mutex mutex;
  std::shared_ptr<const List> observers = std::make_shared<List>();
};

namespace {

void report(const Notification& notification, const char* what) {
  printProblem("An observer of the notification '" + notification.name.rawValue() + "' failed: " + what);
}

}  // namespace

NotificationToken& NotificationToken::operator=(NotificationToken&& other) noexcept {
  if (this == &other) return *this;
  reset();
  registry_ = std::move(other.registry_);
  observer_ = std::move(other.observer_);
  return *this;
}

void NotificationToken::reset() noexcept {
  const auto registry = std::exchange(registry_, {}).lock();
  const auto observer = std::exchange(observer_, {}).lock();
  if (!observer) return;
  observer->registered = false;
  if (!registry) return;
  try {
    registry->renew(nullptr);
  } catch (const std::exception&) {
    // There is no memory for a list without the observer. The observer stays in the old list, but is not
    // called any more. The next change of the list removes it.
  }
}

NotificationCenter& NotificationCenter::defaultCenter() {
  static NeverDestroyed<NotificationCenter> center;
  return *center;
}

NotificationCenter::NotificationCenter() : registry_(std::make_shared<NotificationToken::Registry>()) {}

NotificationCenter::~NotificationCenter() = default;

NotificationToken NotificationCenter::addObserver(NotificationName name, Callback callback) {
  if (!callback) return {};
  auto observer = std::make_shared<NotificationToken::Observer>(std::move(name), std::move(callback));
  registry_->renew(observer);
  return {registry_, observer};
}

void NotificationCenter::post(const Notification& notification) {
  // Do not use members of this object after this line, because an observer may destroy the object.
  const auto observers = registry_->snapshot();
  for (const auto& observer : *observers) {
    if (!observer->registered || observer->name != notification.name) continue;
    try {
      observer->callback(notification);
    } catch (const std::exception& exception) {
      report(notification, exception.what());
    } catch (...) {
      report(notification, "unknown exception");
    }
  }
}

}  // namespace glyph
