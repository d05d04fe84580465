// SPDX-License-Identifier: MIT
#include "glyphorium/services/notifications/notification_center.h"

#include <gmock/gmock.h>

#include <atomic>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "tests/support/recorded_diagnostics.h"

namespace glyph {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class NotificationCenterTest : public testing::Test {
 protected:
  // Adds an observer that records its label and the object, and then calls `then`.
  [[nodiscard]] NotificationToken observe(
      std::string label, std::function<void()> then = [] {}) {
    return center.addObserver("name", [this, label, then](const Notification& notification) {
      calls.push_back(label + notification.object.value_or(""));
      then();
    });
  }
  std::vector<std::string> post(const char* name = "name") {
    calls.clear();
    center.post({name, std::nullopt});
    return calls;
  }

  std::vector<std::string> calls;
  NotificationCenter center;
};

TEST_F(NotificationCenterTest, CallsTheObserversOfTheNameInOrderOfRegistration) {
  auto first = observe("first "), second = observe("second ");
  const auto none = center.addObserver("name", nullptr);
  center.post({"name", "object"});
  EXPECT_THAT(calls, ElementsAre("first object", "second object"));
  EXPECT_THAT(post("Name"), ElementsAre());

  NotificationToken moved = std::move(first);
  first.reset();  // has no effect, because the token was moved from
  EXPECT_THAT(post(), ElementsAre("first ", "second "));
  moved = observe("third ");  // ends the registration of "first"
  second.reset();
  EXPECT_THAT(post(), ElementsAre("third "));
}

TEST_F(NotificationCenterTest, LetsObserversAddRemoveAndPost) {
  NotificationToken removing, removed, itself, added, nesting;
  removing = observe("removing", [&] { removed.reset(); });
  removed = observe("removed");
  itself = observe("itself", [&] { itself.reset(); });
  added = observe("adding", [&] { added = observe("added"); });
  nesting = observe("nesting", [&] {
    nesting.reset();
    center.post({"name", " again"});
  });
  EXPECT_THAT(post(),
              ElementsAre("removing", "itself", "adding", "nesting", "removing again", "added again"));
  EXPECT_THAT(post(), ElementsAre("removing", "added"));
}

TEST_F(NotificationCenterTest, PrintsExceptionsOfObserversAndCallsTheOthers) {
  RecordedDiagnostics diagnostics;
  const auto first = observe("first", [] { throw std::runtime_error("broken"); });
  const auto second = observe("second", [] { throw 1; });
  const auto third = observe("third");
  EXPECT_THAT(post(), ElementsAre("first", "second", "third"));
  EXPECT_THAT(diagnostics.take(),
              ElementsAre(HasSubstr("'name' failed: broken"), HasSubstr("'name' failed: unknown")));
}

TEST(NotificationToken, MayOutliveItsCenter) {
  auto center = std::make_unique<NotificationCenter>();
  // The end of the registration destroys the objects that the observer captured. The destructor of such an
  // object may use the center.
  auto held =
      std::shared_ptr<void>(nullptr, [&](void*) { center->addObserver("other", [](auto&) {}).reset(); });
  auto token = center->addObserver("name", [held](auto&) {});
  held.reset();
  token.reset();
  const auto alive = std::make_shared<int>(0);
  token = center->addObserver("name", [&, alive](auto&) { center.reset(); });
  center->post({"name", std::nullopt});
  EXPECT_EQ(center, nullptr);
  EXPECT_EQ(alive.use_count(), 1);
  token.reset();
}

TEST(NotificationCenterThreads, PostWhileOthersRegister) {
  // Several threads use the default center for the first time at the same time.
  const auto center = []() -> NotificationCenter& { return NotificationCenter::defaultCenter(); };
  std::atomic<int> always{0}, sometimes{0};
  std::vector<std::thread> threads;
  for (int i = 0; i < 4; ++i) {
    threads.emplace_back([&] {
      const auto lasting = center().addObserver("threads", [&](auto&) { ++always; });
      for (int round = 0; round < 500; ++round) {
        const auto passing = center().addObserver("threads", [&](auto&) { ++sometimes; });
        center().post({"threads", std::nullopt});
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_GE(always, 4 * 500);
  EXPECT_GE(sometimes, 4 * 500);
  const int before = always;
  center().post({"threads", std::nullopt});
  EXPECT_EQ(always, before);
}

}  // namespace
}  // namespace glyph
