// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <memory>
#include <optional>
#include <utility>

namespace glyph {

/// An optional value that is stored on the heap. The object itself is as small as a pointer, which suits a
/// field that is absent in most records of a long list. It behaves like std::optional: value() throws
/// std::bad_optional_access if the value is absent. There is one difference: a BoxedOptional that was moved
/// from is empty.
template <class T>
class BoxedOptional {
 public:
  using value_type = T;

  BoxedOptional() noexcept = default;
  BoxedOptional(std::nullopt_t) noexcept {}  // NOLINT: converts like std::optional
  BoxedOptional(T value)                     // NOLINT: converts like std::optional
      : box_(std::make_unique<T>(std::move(value))) {}
  BoxedOptional(std::optional<T> value)  // NOLINT: converts like std::optional
      : box_(value ? std::make_unique<T>(*std::move(value)) : nullptr) {}
  template <class... Arguments>
  explicit BoxedOptional(std::in_place_t, Arguments&&... arguments)
      : box_(std::make_unique<T>(std::forward<Arguments>(arguments)...)) {}
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
  T& operator*() & noexcept { return *box_; }
  const T& operator*() const& noexcept { return *box_; }
  T&& operator*() && noexcept { return std::move(*box_); }
  T* operator->() noexcept { return box_.get(); }
  const T* operator->() const noexcept { return box_.get(); }

  T& value() & { return present(*this); }
  const T& value() const& { return present(*this); }
  T&& value() && { return std::move(present(*this)); }

  template <class Default>
  T value_or(Default&& otherwise) const& {
    return box_ ? *box_ : static_cast<T>(std::forward<Default>(otherwise));
  }
  template <class Default>
  T value_or(Default&& otherwise) && {
    return box_ ? std::move(*box_) : static_cast<T>(std::forward<Default>(otherwise));
  }

  /// Replaces the value with a new value, constructed from the arguments.
  template <class... Arguments>
  T& emplace(Arguments&&... arguments) {
    box_ = std::make_unique<T>(std::forward<Arguments>(arguments)...);
    return *box_;
  }
  void reset() noexcept { box_.reset(); }
  void swap(BoxedOptional& other) noexcept { box_.swap(other.box_); }
  friend void swap(BoxedOptional& a, BoxedOptional& b) noexcept { a.swap(b); }

  friend bool operator==(const BoxedOptional& a,
                         const BoxedOptional& b) requires std::equality_comparable<T> {
    return a && b ? *a == *b : a.has_value() == b.has_value();
  }
  friend bool operator==(const BoxedOptional& a, const T& b) requires std::equality_comparable<T> {
    return a && *a == b;
  }
  friend bool operator==(const BoxedOptional& a, std::nullopt_t) noexcept { return !a.has_value(); }

 private:
  template <class Self>
  static auto& present(Self& self) {
    if (!self.box_) throw std::bad_optional_access();
    return *self.box_;
  }

  std::unique_ptr<T> box_;
};

}  // namespace glyph
