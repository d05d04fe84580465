// SPDX-License-Identifier: MIT
#pragma once

#include <cstdio>
#include <cstdlib>

namespace fuzzing {

/// Aborts the fuzzer if the condition is false. The fuzzer then saves its input as a finding. `what`
/// describes the condition and is printed.
inline void require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "This does not hold: %s\n", what);
  std::abort();
}

}  // namespace fuzzing
