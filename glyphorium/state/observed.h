// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <ranges>
#include <utility>

namespace glyph {

/// A field that calls a function on every change. It can be read like a `const T`: a list can be iterated,
/// indexed, counted and compared. Each assignment stores the new value and then calls the function, even if
/// the new value equals the old value. `= {}` stores an empty value.
///
/// An observed field cannot be copied, so `auto list = field;` does not compile; `T list = field;` copies the
/// value. A field cannot be moved from: `T list = std::move(field);` copies the value too.
template <class T>
class Observed {
 public:
  using DidSet = void (*)(const T&);

  /// Creates a field with the default value of T. After each change, the field calls `didSet` with the new
  /// value. `didSet` must not be null.
  explicit Observed(DidSet didSet) : didSet_(didSet) {}
  Observed(const Observed&) = delete;
  ~Observed() = default;

  Observed& operator=(T value) {
    value_ = std::move(value);
    didSet_(value_);
    return *this;
  }
  Observed& operator=(const Observed& other) {
    *this = other.value_;
    return *this;
  }

  /// Calls `change` with a reference to the value, so that it can change the value in place. Then calls the
  /// observing function once.
  template <class Change>
  void modify(Change change) {
    change(value_);
    didSet_(value_);
  }

  /// Stores the value without calling the observing function, for copying a structure that has observed
  /// fields.
  void assignSilently(T value) noexcept { value_ = std::move(value); }

  const T& get() const noexcept { return value_; }
  operator const T&() const noexcept { return value_; }  // implicit, so that a field can be read as a T
  const T* operator->() const noexcept { return &value_; }
  const T& operator*() const noexcept { return value_; }

  auto begin() const requires std::ranges::range<const T> { return value_.begin(); }
  auto end() const requires std::ranges::range<const T> { return value_.end(); }
  auto size() const requires std::ranges::sized_range<const T> { return value_.size(); }
  bool empty() const requires std::ranges::range<const T> { return value_.empty(); }

  /// For a list, returns the element at this index, which must be valid. For a map, returns the value for
  /// this key, or the default value if the map does not have the key.
  template <class Key>
  decltype(auto) operator[](const Key& key) const requires std::ranges::range<const T> {
    if constexpr (requires(const T& value) { value[key]; }) {
      return value_[key];
    } else {
      const auto found = value_.find(key);
      return found == value_.end() ? typename T::mapped_type() : found->second;
    }
  }

  friend bool operator==(const Observed& a, const T& b) requires std::equality_comparable<T> {
    return a.value_ == b;
  }
  friend bool operator==(const Observed& a, const Observed& b) requires std::equality_comparable<T> {
    return a.value_ == b.value_;
  }

 private:
  T value_{};
  DidSet didSet_;
};

}  // namespace glyph
