// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

namespace glyph {

/// Has this thread's operator new fail from its k-th call on (k = 1, 2 …), or at that call only, while the
/// object lives.
class FailingNew {
 public:
  enum class Mode { once, fromThenOn };
  FailingNew(std::size_t k, Mode mode);
  ~FailingNew();
  FailingNew(const FailingNew&) = delete;
  FailingNew& operator=(const FailingNew&) = delete;

  /// How often it was called so far, the failing calls included.
  std::size_t calls() const;
};

}  // namespace glyph
