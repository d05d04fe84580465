// SPDX-License-Identifier: MIT
#pragma once

#include <utility>

namespace glyph {

/// A field that does something on change. Reads like a `const T`; every assignment stores the new value, also
/// an equal one, and then calls `didSet` with it. Copying a whole structure that holds such fields calls
/// nothing.
template <class T, void (*didSet)(const T&)>
class Observed {
 public:
  Observed() = default;
  explicit Observed(T value) : value_(std::move(value)) {}
  Observed(const Observed&) = default;
  Observed(Observed&&) noexcept = default;
  ~Observed() = default;

  Observed& operator=(T value) {
    value_ = std::move(value);
    didSet(value_);
    return *this;
  }
  Observed& operator=(const Observed& other) { return *this = other.value_; }

  /// Changes the value in place by `change(T&)`, then calls `didSet` once.
  template <class Change>
  void modify(Change change) {
    change(value_);
    didSet(value_);
  }

  /// Takes over another field's value without calling `didSet`: for the copy of a whole structure.
  void assignSilently(Observed&& other) noexcept { value_ = std::move(other.value_); }

  const T& get() const { return value_; }
  operator const T&() const { return value_; }  // NOLINT: reads like a const T
  const T* operator->() const { return &value_; }
  const T& operator*() const { return value_; }

 private:
  T value_{};
};

}  // namespace glyph
