// SPDX-License-Identifier: MIT
#pragma once

#include <memory>
#include <optional>
#include <utility>

namespace glyph {

/// An optional value that stands outside its owner: copied with it, like std::optional, but as small as a
/// pointer while it is absent. For what most owners of a long list do not have.
template <class T>
class BoxedOptional {
 public:
  BoxedOptional() noexcept = default;
  BoxedOptional(std::nullopt_t) noexcept {}  // NOLINT: converts like std::optional
  BoxedOptional(T value)
      : box_(std::make_unique<T>(std::move(value))) {}  // NOLINT: converts like std::optional
  BoxedOptional(const BoxedOptional& other) : box_(other ? std::make_unique<T>(*other) : nullptr) {}
  BoxedOptional(BoxedOptional&&) noexcept = default;
  ~BoxedOptional() = default;
  BoxedOptional& operator=(const BoxedOptional& other) {
    if (this != &other) *this = BoxedOptional(other);
    return *this;
  }
  BoxedOptional& operator=(BoxedOptional&&) noexcept = default;

  bool has_value() const noexcept { return box_ != nullptr; }
  explicit operator bool() const noexcept { return has_value(); }
  T& operator*() noexcept { return *box_; }
  const T& operator*() const noexcept { return *box_; }
  T* operator->() noexcept { return box_.get(); }
  const T* operator->() const noexcept { return box_.get(); }

  /// A new value made of the arguments in the place of what there was.
  template <class... Arguments>
  T& emplace(Arguments&&... arguments) {
    box_ = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    return *box_;
  }
  void reset() noexcept { box_.reset(); }

 private:
  std::unique_ptr<T> box_;
};

}  // namespace glyph
