// SPDX-License-Identifier: MIT
#include "glyphorium/entity/table_repair.h"

#include <algorithm>

namespace glyph {
namespace {

// Returns the text with all occurrences of `what` replaced with `with`, from left to right, without overlaps.
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

// Returns whether the table contains one of the two sequences that the repair replaces. A search that stops
// at each quotation mark would be slow, because JSON has very many of them. This loop checks every byte and
// is nearly as fast as reading the memory.
bool needsRepair(std::string_view json) {
  // The inner loop has no branches, so that the compiler can vectorise it.
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
  // The order matters. If the quotation marks were replaced first, the reverse solidi that escape them would
  // then be escaped too.
  return replaced(replaced(json, bareReverseSolidus, R"("\\")"), bareQuotationMark, R"("\"")");
}

}  // namespace glyph
