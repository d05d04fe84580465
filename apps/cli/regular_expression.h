// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace cli {

/// A regular expression of ICU that ignores letter case. Such expressions support the properties of
/// characters (\p{Greek}). ICU has a separate library for them, which few runs of the program need. So the
/// library is loaded only when the first expression is made.
class RegularExpression {
 public:
  /// `pattern` is UTF-8.
  explicit RegularExpression(std::string_view pattern);
  ~RegularExpression();
  RegularExpression(const RegularExpression&) = delete;
  RegularExpression& operator=(const RegularExpression&) = delete;

  /// Why the pattern cannot be used. Empty if it can.
  const std::string& fault() const { return fault_; }

  /// Returns whether the expression matches a part of the UTF-8 text.
  bool matches(std::string_view text) const;

 private:
  void* expression_ = nullptr;
  std::string fault_;
};

}  // namespace cli
