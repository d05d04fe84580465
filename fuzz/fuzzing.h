// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "glyphorium/platform/diagnostics.h"

namespace fuzzing {

/// Ends the fuzzer, which then keeps its input as a finding, unless the condition holds.
inline void require(bool condition, const char* what) {
  if (condition) return;
  std::fprintf(stderr, "Not so: %s\n", what);
  std::abort();
}

inline std::string_view input(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

}  // namespace fuzzing

/// libFuzzer's entry points.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);
extern "C" inline int LLVMFuzzerInitialize(int*, char***) __attribute__((used, visibility("default")));
extern "C" inline int LLVMFuzzerInitialize(int*, char***) {
  // Most inputs are faulty, and each would be reported.
  glyph::setDiagnosticsSink([](std::string_view) {});
  return 0;
}
