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
  // Posts under way walk a list that still holds the observer after its registration ended.
  std::atomic<bool> registered{true};
};

// The list is replaced, never changed, so a post walks the one that it found without a lock.
struct NotificationToken::Registry {
  using List = std::vector<std::shared_ptr<Observer>>;

  std::shared_ptr<const List> snapshot() {
    const std::lock_guard lock(mutex);
    return observers;
  }

  // Replaces the list by what `change` makes of a copy. The list before is let go without the lock: with it
  // may go the last hold on a callback, whose destructor is the host's code.
  template <typename Change>
  void modify(Change change) {
    std::shared_ptr<const List> before;
    const std::lock_guard lock(mutex);
    auto after = std::make_shared<List>(*observers);
    change(*after);
    before = std::exchange(observers, std::move(after));
  }

  std::mutex mutex;
  std::shared_ptr<const List> observers = std::make_shared<List>();
};

namespace {

void report(const Notification& notification, const char* what) {
  printDiagnostic("An observer of the notification '" + notification.name.rawValue() + "' failed: " + what);
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
    registry->modify([&](Registry::List& list) { std::erase(list, observer); });
  } catch (const std::exception&) {  // no memory for the shorter list: a silenced observer stays in it
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
  registry_->modify([&](NotificationToken::Registry::List& list) { list.push_back(observer); });
  return {registry_, observer};
}

void NotificationCenter::post(const Notification& notification) {
  // From here on nothing of this object is touched: an observer may destroy it.
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
