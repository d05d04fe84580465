// SPDX-License-Identifier: MIT
#include "glyphorium/c/codes.h"

#include <algorithm>

#include "glyphorium/c/handles.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/data/name_table.h"

using namespace glyph::c;
using glyph::CodeFormats;

struct glyphorium_codes {
  std::vector<glyph::ParsedCode> list;
};

int64_t glyphorium_decimal_of_hex(const char* hex) {
  if (!hex) return InvalidArgument();
  return guarded([=] { return CodeFormats().getDecimal(hex); });
}

char* glyphorium_hex_of_decimal(int64_t decimal) {
  return guarded([=] { return owned(CodeFormats().getHex(decimal)); });
}

char* glyphorium_html_hex_of_hex(const char* hex_list) {
  if (!hex_list) return InvalidArgument();
  return guarded([=] { return owned(CodeFormats().getAdvancedHtmlHex(hex_list)); });
}

char* glyphorium_html_decimal_of_decimal(int64_t decimal) {
  return guarded([=] { return owned(CodeFormats().getHtmlDecimal(decimal)); });
}

char* glyphorium_symbol_of_references(const char* text, size_t text_size, size_t* size) {
  if (!text) return InvalidArgument();
  return guarded([=] { return owned(CodeFormats().getSymbol(textOf(text, text_size)), size); });
}

char* glyphorium_symbol_of_hex(const char* hex_list, size_t* size) {
  if (!hex_list) return InvalidArgument();
  return guarded([=] { return owned(CodeFormats().getAdvancedSymbol(hex_list), size); });
}

size_t glyphorium_decimals_of_hex(const char* hex_list, int64_t* decimals, size_t capacity) {
  if (!hex_list || (!decimals && capacity > 0)) return InvalidArgument();
  return guarded([=] {
    const auto numbers = CodeFormats().getAdvancedDecimal(hex_list);
    std::copy_n(numbers.begin(), std::min(capacity, numbers.size()), decimals);
    return numbers.size();
  });
}

char* glyphorium_html_decimal_of_decimals(const int64_t* decimals, size_t count) {
  if ((!decimals && count > 0) || count > PTRDIFF_MAX / sizeof *decimals) return InvalidArgument();
  return guarded([=] {
    return owned(CodeFormats().getAdvancedHtmlDecimal(std::vector<std::int64_t>(decimals, decimals + count)));
  });
}

char* glyphorium_swiftui_of_sf_symbol(const char* name) {
  if (!name) return InvalidArgument();
  return guarded([=] { return owned(CodeFormats().getSFSymbolSwiftUICode(name)); });
}

char* glyphorium_uikit_of_sf_symbol(const char* name) {
  if (!name) return InvalidArgument();
  return guarded([=] { return owned(CodeFormats().getSFSymbolUIKitCode(name)); });
}

glyphorium_codes* glyphorium_codes_parse(const char* text) {
  if (!text) return InvalidArgument();
  return guarded([=] { return new glyphorium_codes{glyph::parseCodes(text)}; });
}

size_t glyphorium_codes_count(const glyphorium_codes* codes) {
  if (!codes) return InvalidArgument();
  return codes->list.size();
}

uint32_t glyphorium_codes_code_point(const glyphorium_codes* codes, size_t index) {
  if (!codes || index >= codes->list.size()) return InvalidArgument();
  return codes->list[index].codePoint;
}

glyphorium_text glyphorium_codes_html_name(const glyphorium_codes* codes, size_t index) {
  if (!codes || index >= codes->list.size()) return InvalidArgument();
  return borrowed(codes->list[index].htmlName);
}

void glyphorium_codes_free(glyphorium_codes* codes) {
  delete codes;
}

glyphorium_text glyphorium_name_of_hex(const char* hex) {
  if (!hex) return InvalidArgument();
  return guarded([=]() -> glyphorium_text {
    const auto entry = glyph::findName(hex);
    return entry ? borrowed(entry->name) : glyphorium_text{nullptr, 0};
  });
}

int64_t glyphorium_code_point_named(const char* name) {
  if (!name) {
    setStatus(GLYPHORIUM_INVALID_ARGUMENT);
    return -1;
  }
  return guarded([=] {
    const auto codePoint = glyph::findCodePoint(name);
    return codePoint ? static_cast<int64_t>(*codePoint) : int64_t{-1};
  });
}
