// SPDX-License-Identifier: MIT
#include "glyphorium/entity/table_repair.h"

#include <algorithm>

namespace glyph {
namespace {

// The text with all occurrences of `what` replaced, from left to right, without overlaps.
std::string replaced(std::string_view text, std::string_view what, std::string_view with) {
  std::string result;
  result.reserve(text.size() + 16);
  for (;;) {
    const std::size_t at = text.find(what);
    result += text.substr(0, at);
    if (at == std::string_view::npos) return result;
    result += with;
    text.remove_prefix(at + what.size());
  }
}

// Whether the table holds one of the two sequences that the repair replaces. A search that stops at each
// quotation mark is slow, because JSON is full of them. This loop looks at every byte, at memory speed.
bool needsRepair(std::string_view json) {
  // The loop has no branch, so that the compiler can vectorise it.
  constexpr std::size_t block = 4096;
  for (std::size_t begin = 0; begin + 2 < json.size(); begin += block) {
    const std::size_t end = std::min(begin + block, json.size() - 2);
    unsigned char found = 0;
    for (std::size_t i = begin; i < end; ++i) {
      const int before = json[i] == '"';
      const int after = json[i + 2] == '"';
      const int quotationMark = json[i + 1] == '"';
      const int reverseSolidus = json[i + 1] == '\\';
      found |= static_cast<unsigned char>(before & after & (quotationMark | reverseSolidus));
    }
    if (found) return true;
  }
  return false;
}

}  // namespace

std::optional<std::string> repairedTable(std::string_view json) {
  constexpr std::string_view bareReverseSolidus = "\"\\\"";
  constexpr std::string_view bareQuotationMark = "\"\"\"";
  if (!needsRepair(json)) return std::nullopt;
  // The order matters: the other way round, the second replacement would take the reverse solidus that
  // escapes a quotation mark for a bare one.
  return replaced(replaced(json, bareReverseSolidus, R"("\\")"), bareQuotationMark, R"("\"")");
}

}  // namespace glyph
