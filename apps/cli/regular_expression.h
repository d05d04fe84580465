// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace cli {

/// A regular expression of ICU that ignores letter case. It may contain properties of characters, such as
/// \p{Greek}. Regular expressions are in a separate library of ICU. Few runs of the program need that
/// library, so it is loaded only when the first expression is created.
class RegularExpression {
 public:
  /// `pattern` is UTF-8.
  explicit RegularExpression(std::string_view pattern);
  ~RegularExpression();
  RegularExpression(const RegularExpression&) = delete;
  RegularExpression& operator=(const RegularExpression&) = delete;

  /// The reason why the pattern cannot be used. Empty if the pattern is valid.
  const std::string& fault() const { return fault_; }

  /// Returns whether the expression matches a part of the UTF-8 text. False if the pattern cannot be used.
  bool matches(std::string_view text) const;

 private:
  void* expression_ = nullptr;
  std::string fault_;
};

}  // namespace cli
