// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Makes some calls of operator new on this thread fail: the calls with the numbers `first` to `last`. The
/// first call has the number 1. If `last` is 0, no call fails. `calls` is the number of calls so far. Set
/// `calls` to 0 to restart the count.
struct FailingNew {
  std::size_t first = 0, last = 0, calls = 0;
};
extern thread_local FailingNew failingNew;

}  // namespace glyph
