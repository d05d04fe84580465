// SPDX-License-Identifier: MIT
#pragma once

#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <iosfwd>
#include <string>
#include <string_view>
#include <utility>

namespace glyph {

/// A text field of a record, in UTF-8. It is a value like a std::string, but a text of the catalog is not
/// copied: such a text is a constant in the read-only image of the library, and the field refers to it. Any
/// other text is a copy that the field owns.
///
/// A RecordText converts to std::string and to std::string_view, and is compared and joined with both. It
/// has the const functions of std::string, and `=`, `+=` and clear(). To change single bytes, change a
/// std::string and assign it. Three kinds of expressions need an explicit conversion:
/// - The operator ?: with a std::string on the other side: `cond ? text : std::string()` does not compile;
///   `cond ? text : ""` does.
/// - A template that deduces its parameter from std::string, such as std::regex_match() or std::max(), and
///   std::filesystem::path: pass std::string(text) or view().
/// - A function that changes a std::string through a reference, or a vector of std::string: copy the
///   field first.
///
/// Lifetime: view(), data() and iterators are valid until the RecordText is changed or destroyed, as those
/// of a std::string are. The constants live as long as the library is loaded. The shared library stays
/// loaded until the process ends, even after dlclose(). If a plugin contains the static library, the
/// plugin's records and their copies must not be used after the plugin is unloaded. Copies of their texts
/// as std::string stay valid.
///
/// Thread safety: as for std::string. Copies share constants only.
class RecordText {
 public:
  using value_type = char;
  using size_type = std::size_t;
  using const_iterator = const char*;
  using iterator = const_iterator;
  static constexpr std::size_t npos = std::string_view::npos;

  constexpr RecordText() noexcept = default;
  RecordText(const char* text) : RecordText(std::string_view(text)) {}         // implicit, as in std::string
  RecordText(const std::string& text) : RecordText(std::string_view(text)) {}  // implicit, as in std::string
  explicit RecordText(std::string_view text) : RecordText(copyOf(text), text.size(), true) {}

  /// Returns a text that refers to a constant instead of copying it. The constant must be null-terminated
  /// and must live as long as every copy of the result.
  static constexpr RecordText ofConstant(std::string_view constant) noexcept {
    return {constant.data(), constant.size(), false};
  }

  RecordText(const RecordText& other)
      : data_(other.isOwned() ? copyOf(other) : other.data_), sizeAndOwned_(other.sizeAndOwned_) {}
  RecordText(RecordText&& other) noexcept
      : data_(std::exchange(other.data_, "")), sizeAndOwned_(std::exchange(other.sizeAndOwned_, 0)) {}
  constexpr ~RecordText() {
    if (isOwned()) delete[] data_;
  }
  RecordText& operator=(const RecordText& other) {
    if (this != &other) *this = RecordText(other);
    return *this;
  }
  RecordText& operator=(RecordText&& other) noexcept {
    std::swap(data_, other.data_);
    std::swap(sizeAndOwned_, other.sizeAndOwned_);
    return *this;
  }
  template <std::convertible_to<std::string_view> T>
  RecordText& operator=(const T& text) {
    return *this = RecordText(std::string_view(text));
  }

  void clear() noexcept { *this = RecordText(); }

  /// Appends the text. The time is proportional to the length of the result.
  RecordText& operator+=(std::string_view more) { return *this = *this + more; }
  RecordText& operator+=(char more) { return *this += std::string_view(&more, 1); }

  constexpr std::string_view view() const noexcept { return {data(), size()}; }
  constexpr operator std::string_view() const noexcept { return view(); }  // implicit, as in std::string
  operator std::string() const { return std::string(view()); }  // implicit: usable as a std::string

  /// The bytes of the text, null-terminated.
  constexpr const char* data() const noexcept { return data_; }
  constexpr const char* c_str() const noexcept { return data_; }
  constexpr std::size_t size() const noexcept { return static_cast<std::size_t>(sizeAndOwned_ >> 1); }
  constexpr std::size_t length() const noexcept { return size(); }
  constexpr bool empty() const noexcept { return size() == 0; }
  constexpr const_iterator begin() const noexcept { return data_; }
  constexpr const_iterator end() const noexcept { return data_ + size(); }
  constexpr const_iterator cbegin() const noexcept { return begin(); }
  constexpr const_iterator cend() const noexcept { return end(); }
  constexpr const char& operator[](std::size_t position) const noexcept { return data_[position]; }
  constexpr const char& front() const noexcept { return *data_; }
  constexpr const char& back() const noexcept { return data_[size() - 1]; }

  // These functions have the parameters and the results of those of std::string.
  const char& at(std::size_t position) const { return view().at(position); }
  std::string substr(std::size_t begin = 0, std::size_t count = npos) const {
    return std::string(view().substr(begin, count));
  }
  template <class... Arguments>
  int compare(const Arguments&... arguments) const {
    return view().compare(arguments...);
  }
  template <class Text>
  bool starts_with(const Text& text) const noexcept {
    return view().starts_with(text);
  }
  template <class Text>
  bool ends_with(const Text& text) const noexcept {
    return view().ends_with(text);
  }
  template <class... Arguments>
  std::size_t find(const Arguments&... arguments) const noexcept {
    return view().find(arguments...);
  }
  template <class... Arguments>
  std::size_t rfind(const Arguments&... arguments) const noexcept {
    return view().rfind(arguments...);
  }
  template <class... Arguments>
  std::size_t find_first_of(const Arguments&... arguments) const noexcept {
    return view().find_first_of(arguments...);
  }
  template <class... Arguments>
  std::size_t find_last_of(const Arguments&... arguments) const noexcept {
    return view().find_last_of(arguments...);
  }
  template <class... Arguments>
  std::size_t find_first_not_of(const Arguments&... arguments) const noexcept {
    return view().find_first_not_of(arguments...);
  }
  template <class... Arguments>
  std::size_t find_last_not_of(const Arguments&... arguments) const noexcept {
    return view().find_last_not_of(arguments...);
  }

  // The other operand may be of any type that converts to std::string_view. It is a template parameter,
  // because otherwise its conversion could be ambiguous.
  template <std::convertible_to<std::string_view> T>
  friend bool operator==(const RecordText& a, const T& b) noexcept {
    return a.view() == std::string_view(b);
  }
  template <std::convertible_to<std::string_view> T>
  friend std::strong_ordering operator<=>(const RecordText& a, const T& b) noexcept {
    return a.view() <=> std::string_view(b);
  }
  template <std::convertible_to<std::string_view> T>
  friend std::string operator+(const RecordText& a, const T& b) {
    return joined(a, b);
  }
  template <std::convertible_to<std::string_view> T>
  requires(!std::same_as<T, RecordText>) friend std::string operator+(const T& a, const RecordText& b) {
    return joined(a, b);
  }
  friend std::string operator+(std::string&& a, const RecordText& b) { return std::move(a += b.view()); }
  friend std::string operator+(const RecordText& a, char b) { return joined(a, {&b, 1}); }
  friend std::string operator+(char a, const RecordText& b) { return joined({&a, 1}, b); }

  template <class Traits>
  friend auto& operator<<(std::basic_ostream<char, Traits>& stream, const RecordText& text) {
    return stream << text.view();
  }

 private:
  constexpr RecordText(const char* data, std::size_t size, bool isOwned) noexcept
      : data_(data), sizeAndOwned_(std::uint64_t{size} << 1 | std::uint64_t{isOwned}) {}

  static const char* copyOf(std::string_view text) {
    char* const copy = new char[text.size() + 1];
    if (!text.empty()) std::memcpy(copy, text.data(), text.size());
    copy[text.size()] = '\0';
    return copy;
  }
  static std::string joined(std::string_view a, std::string_view b) {
    std::string result;
    result.reserve(a.size() + b.size());
    return std::move(result.append(a).append(b));
  }
  constexpr bool isOwned() const noexcept { return sizeAndOwned_ & 1; }

  const char* data_ = "";
  std::uint64_t sizeAndOwned_ = 0;  // twice the size, plus 1 if data_ must be deleted
};

}  // namespace glyph

template <>
struct std::hash<glyph::RecordText> {
  std::size_t operator()(const glyph::RecordText& text) const noexcept {
    return std::hash<std::string_view>()(text.view());
  }
};
