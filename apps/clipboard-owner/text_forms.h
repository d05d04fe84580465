// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "display.h"

namespace clipboard {

/// The content of a selection in one form: the type of the bytes and the bytes.
struct Form {
  xcb_atom_t type;
  std::string_view bytes;
};

/// One text in all the forms in which programs request a selection.
class TextForms {
 public:
  /// `text` is UTF-8. Ill-formed bytes are kept unchanged.
  TextForms(std::string text, const Atoms& atoms);
  TextForms(const TextForms&) = delete;
  TextForms& operator=(const TextForms&) = delete;

  /// The targets in which the text is available. STRING means Latin-1 and is in the list only if Latin-1
  /// contains all characters of the text.
  const std::vector<std::uint32_t>& targets() const { return targets_; }
  /// Returns the text in the form for this target, or nullopt if the target is not in targets(). The bytes
  /// exist as long as this object.
  std::optional<Form> form(xcb_atom_t target) const;

 private:
  std::string utf8_;
  std::optional<std::string> latin1_;
  std::vector<std::uint32_t> targets_;
  xcb_atom_t utf8String_, text_;
};

}  // namespace clipboard
