// SPDX-License-Identifier: MIT
#include "waiting.h"

#include <atomic>

#include "glyphorium/services/sqlite/lock_wait.h"
#include "output.h"

namespace cli {

void limitLockWaits() {
  glyph::setLockWaitPolicy([](std::chrono::milliseconds waited) {
    static std::atomic<std::int64_t> total = 0;     // the total of all waits so far, in milliseconds
    thread_local std::chrono::milliseconds before;  // value of `waited` in the previous call
    const auto longer = waited >= before ? waited - before : waited;
    before = waited;
    const std::int64_t until = total += longer.count();
    if (until >= 1000 && until - longer.count() < 1000) {
      complain("waiting for another program that has locked the settings or the search index ...");
    }
    return until < 5000;
  });
}

}  // namespace cli
