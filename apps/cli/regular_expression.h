// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace cli {

/// A regular expression of ICU, without regard to letter case. ICU's expressions know the properties of
/// characters (\p{Greek}), but they are in a library of their own that hardly any call of the program needs.
/// So it is loaded here.
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
