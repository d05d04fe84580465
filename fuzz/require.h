// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzzing {

/// Ends the fuzzer, which then keeps its input as a finding, unless the condition holds.
inline void require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "Not so: %s\n", what);
  std::abort();
}

}  // namespace fuzzing
