// SPDX-License-Identifier: MIT
#pragma once

#include <concepts>
#include <cstdint>
#include <optional>
#include <utility>

namespace glyph {

/// An optional value whose object is as small as a pointer, which suits a field that is absent in most
/// records of a long list. The value is on the heap, or it is a constant that many objects share.
///
/// It is read like a std::optional: value() throws std::bad_optional_access if the value is absent. There
/// are two differences. A BoxedOptional that was moved from is empty. `*` and `->` give const access,
/// because the value may be shared; use edit() to change it in place.
///
/// Thread safety: as for std::optional. Copies share constants only.
template <class T>
class BoxedOptional {
 public:
  using value_type = T;

  BoxedOptional() noexcept = default;
  BoxedOptional(std::nullopt_t) noexcept {}  // NOLINT: converts like std::optional
  BoxedOptional(T value) : BoxedOptional(std::in_place, std::move(value)) {}  // NOLINT: as above
  BoxedOptional(std::optional<T> value) {                                     // NOLINT: as above
    if (value) emplace(*std::move(value));
  }
  template <class... Arguments>
  explicit BoxedOptional(std::in_place_t, Arguments&&... arguments) {
    emplace(std::forward<Arguments>(arguments)...);
  }

  /// Returns a value that refers to a constant instead of copying it. The constant must live as long as every
  /// copy of the result.
  static BoxedOptional ofConstant(const T& constant) noexcept {
    BoxedOptional result;
    result.box_ = reinterpret_cast<std::uintptr_t>(&constant) | isConstant;
    return result;
  }

  BoxedOptional(const BoxedOptional& other) : box_(other.box_) {
    if (other.isOwned()) box_ = newBox(*other);
  }
  BoxedOptional(BoxedOptional&& other) noexcept : box_(std::exchange(other.box_, 0)) {}
  ~BoxedOptional() {
    if (isOwned()) delete pointer();
  }
  BoxedOptional& operator=(const BoxedOptional& other) {
    if (this != &other) *this = BoxedOptional(other);
    return *this;
  }
  BoxedOptional& operator=(BoxedOptional&& other) noexcept {
    BoxedOptional(std::move(other)).swap(*this);
    return *this;
  }

  bool has_value() const noexcept { return box_ != 0; }
  explicit operator bool() const noexcept { return has_value(); }
  const T& operator*() const noexcept { return *pointer(); }
  const T* operator->() const noexcept { return pointer(); }

  const T& value() const {
    if (!has_value()) throw std::bad_optional_access();
    return *pointer();
  }

  template <class Default>
  T value_or(Default&& otherwise) const {
    return has_value() ? *pointer() : static_cast<T>(std::forward<Default>(otherwise));
  }

  /// Returns a reference through which the value can be changed. If the value is a shared constant, it is
  /// copied first. Throws std::bad_optional_access if the value is absent.
  T& edit() {
    if (!isOwned()) *this = BoxedOptional(value());
    return *pointer();
  }

  /// Replaces the value with one constructed from the arguments, and returns a reference to the new value.
  template <class... Arguments>
  T& emplace(Arguments&&... arguments) {
    const std::uintptr_t box = newBox(std::forward<Arguments>(arguments)...);
    reset();
    box_ = box;
    return *pointer();
  }
  void reset() noexcept { BoxedOptional().swap(*this); }
  void swap(BoxedOptional& other) noexcept { std::swap(box_, other.box_); }
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
  // The lowest bit of the address is free, because a T has an even address.
  static constexpr std::uintptr_t isConstant = 1;

  template <class... Arguments>
  static std::uintptr_t newBox(Arguments&&... arguments) {
    static_assert(alignof(T) > isConstant);
    return reinterpret_cast<std::uintptr_t>(new T(std::forward<Arguments>(arguments)...));
  }
  T* pointer() const noexcept { return reinterpret_cast<T*>(box_ & ~isConstant); }
  bool isOwned() const noexcept { return box_ != 0 && (box_ & isConstant) == 0; }

  std::uintptr_t box_ = 0;  // the address of the value and, in the lowest bit, whether it is a constant
};

}  // namespace glyph
