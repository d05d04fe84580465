// SPDX-License-Identifier: MIT
#include "regular_expression.h"

#include <dlfcn.h>
#include <unicode/uregex.h>

#include "glyphorium/text/unicode_text.h"

#define NAME_AS_TEXT(name) #name
#define NAME_OF(function) NAME_AS_TEXT(function)

namespace cli {
namespace {

// The functions of ICU's library for regular expressions. Their symbol names end in the version of ICU.
struct Functions {
  decltype(&uregex_open) open = nullptr;
  decltype(&uregex_setText) setText = nullptr;
  decltype(&uregex_find) find = nullptr;
  decltype(&uregex_close) close = nullptr;

  Functions() {
    void* const library = dlopen("libicui18n.so." U_ICU_VERSION_SHORT, RTLD_NOW);
    if (!library) return;
    open = reinterpret_cast<decltype(open)>(dlsym(library, NAME_OF(uregex_open)));
    setText = reinterpret_cast<decltype(setText)>(dlsym(library, NAME_OF(uregex_setText)));
    find = reinterpret_cast<decltype(find)>(dlsym(library, NAME_OF(uregex_find)));
    close = reinterpret_cast<decltype(close)>(dlsym(library, NAME_OF(uregex_close)));
  }
  bool areFound() const { return open && setText && find && close; }
};

// Returns the functions, or null if ICU's library for regular expressions is not installed.
const Functions* icu() {
  static const Functions functions;
  return functions.areFound() ? &functions : nullptr;
}

std::u16string utf16(std::string_view text) {
  std::u16string units;
  for (const char32_t point : glyph::codePoints(text)) {
    if (point < 0x10000) {
      units += static_cast<char16_t>(point);
    } else {
      units += static_cast<char16_t>(0xD7C0 + (point >> 10));
      units += static_cast<char16_t>(0xDC00 + (point & 0x3FF));
    }
  }
  return units;
}

}  // namespace

RegularExpression::RegularExpression(std::string_view pattern) {
  const Functions* const functions = icu();
  if (!functions) {
    fault_ = "ICU's library for regular expressions is not installed";
    return;
  }
  const std::u16string units = utf16(pattern);
  UParseError place{};
  UErrorCode status = U_ZERO_ERROR;
  expression_ = functions->open(units.data(), static_cast<int32_t>(units.size()), UREGEX_CASE_INSENSITIVE,
                                &place, &status);
  if (U_FAILURE(status))
    fault_ = std::string(u_errorName(status)) + " at character " + std::to_string(place.offset);
}

RegularExpression::~RegularExpression() {
  if (const Functions* const functions = icu(); functions && expression_)
    functions->close(static_cast<URegularExpression*>(expression_));
}

bool RegularExpression::matches(std::string_view text) const {
  const Functions* const functions = icu();
  if (!functions || !expression_) return false;
  const std::u16string units = utf16(text);
  auto* const expression = static_cast<URegularExpression*>(expression_);
  UErrorCode status = U_ZERO_ERROR;
  functions->setText(expression, units.data(), static_cast<int32_t>(units.size()), &status);
  return functions->find(expression, 0, &status) && U_SUCCESS(status);
}

}  // namespace cli
