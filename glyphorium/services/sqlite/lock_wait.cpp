// SPDX-License-Identifier: MIT
#include "glyphorium/services/sqlite/lock_wait.h"

#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "glyphorium/services/sqlite/sqlite.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

using std::chrono::milliseconds;

struct Current {
  std::mutex mutex;
  std::shared_ptr<const LockWaitPolicy> policy;  // null means the default
};

Current& current() {
  static NeverDestroyed<Current> instance;  // settings may be saved during exit
  return *instance;
}

}  // namespace

void setLockWaitPolicy(LockWaitPolicy policy) {
  auto replacement = policy ? std::make_shared<const LockWaitPolicy>(std::move(policy)) : nullptr;
  const std::lock_guard lock(current().mutex);
  current().policy.swap(replacement);
}

bool waitForLock(milliseconds waited) noexcept try {
  std::shared_ptr<const LockWaitPolicy> policy;
  {
    const std::lock_guard lock(current().mutex);
    policy = current().policy;
  }
  if (!(policy ? (*policy)(waited) : waited < milliseconds(5000))) return false;
  // Most locks last only a few milliseconds, so the first pauses are short.
  std::this_thread::sleep_for(waited < milliseconds(50) ? milliseconds(1) : milliseconds(10));
  return true;
} catch (...) {  // the policy is the host's code and may throw
  return false;
}

}  // namespace glyph
