// SPDX-License-Identifier: MIT
#include "text_forms.h"

#include <algorithm>

namespace clipboard {
namespace {

// Converts UTF-8 to Latin-1. Returns nullopt if the text has characters after U+00FF or is not well-formed.
std::optional<std::string> latin1(std::string_view utf8) {
  std::string result;
  for (std::size_t i = 0; i < utf8.size(); ++i) {
    const auto byte = static_cast<unsigned char>(utf8[i]);
    if (byte < 0x80) {
      result += utf8[i];
      continue;
    }
    if ((byte != 0xC2 && byte != 0xC3) || ++i == utf8.size()) return std::nullopt;
    const auto next = static_cast<unsigned char>(utf8[i]);
    if ((next & 0xC0) != 0x80) return std::nullopt;
    result += static_cast<char>((byte & 3) << 6 | (next & 0x3F));
  }
  return result;
}

}  // namespace

TextForms::TextForms(std::string text, const Atoms& atoms)
    : utf8_(std::move(text)),
      latin1_(latin1(utf8_)),
      targets_{atoms.utf8String, atoms.plainTextUtf8, atoms.plainText, atoms.text},
      utf8String_(atoms.utf8String),
      text_(atoms.text) {
  if (latin1_) targets_.push_back(XCB_ATOM_STRING);
}

std::optional<Form> TextForms::form(xcb_atom_t target) const {
  if (std::find(targets_.begin(), targets_.end(), target) == targets_.end()) return std::nullopt;
  if (target == XCB_ATOM_STRING) return Form{XCB_ATOM_STRING, *latin1_};
  // A program that requests the target TEXT accepts any encoding. The type of the answer says which encoding
  // it has.
  return Form{target == text_ ? utf8String_ : target, utf8_};
}

}  // namespace clipboard
