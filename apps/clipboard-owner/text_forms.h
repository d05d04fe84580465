// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display.h"

namespace clipboard {

/// The bytes of a selection in one form.
struct Form {
  xcb_atom_t type;
  std::string_view bytes;
};

/// One text in the forms that programs ask a selection for.
class TextForms {
 public:
  /// `text` is UTF-8. What is not well-formed is kept as it is.
  TextForms(std::string text, const Atoms& atoms);
  TextForms(const TextForms&) = delete;
  TextForms& operator=(const TextForms&) = delete;

  /// The targets of the text. STRING, which is Latin-1, is among them only where the text has no other
  /// characters.
  const std::vector<std::uint32_t>& targets() const { return targets_; }
  /// nullopt where the target is none of them.
  std::optional<Form> form(xcb_atom_t target) const;

 private:
  std::string utf8_;
  std::optional<std::string> latin1_;
  std::vector<std::uint32_t> targets_;
  xcb_atom_t utf8String_, text_;
};

}  // namespace clipboard
