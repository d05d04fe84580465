// SPDX-License-Identifier: MIT
#pragma once

#include <new>
#include <utility>

namespace glyph {

/// Holds a T that is never destroyed. A global made of it can be used until the process ends, also by the
/// destructors of other globals and by functions that run at exit. As a function's static variable it is made
/// on first use, which is safe from several threads.
template <class T>
class NeverDestroyed {
 public:
  template <class... Arguments>
  explicit NeverDestroyed(Arguments&&... arguments) {
    new (storage_) T(std::forward<Arguments>(arguments)...);
  }
  NeverDestroyed(const NeverDestroyed&) = delete;
  NeverDestroyed& operator=(const NeverDestroyed&) = delete;

  T& operator*() noexcept { return *std::launder(reinterpret_cast<T*>(storage_)); }

 private:
  alignas(T) unsigned char storage_[sizeof(T)];
};

}  // namespace glyph
