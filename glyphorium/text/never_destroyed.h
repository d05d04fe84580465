// SPDX-License-Identifier: MIT
#pragma once

#include <new>
#include <utility>

namespace glyph {

/// Contains a T that is never destroyed. A global object of this type can be used until the process ends,
/// even by the destructors of other globals and by functions that run at exit. If it is a static variable of
/// a function, the first call of the function creates it; several threads may make this call at once.
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
