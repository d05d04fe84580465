// SPDX-License-Identifier: MIT
// Tests how the search index splits texts into words. Every item must be found by its name. The first line of
// the input is a query, the second line is the symbol of the item, and the rest is its name.
#include <algorithm>
#include <cstdint>
#include <exception>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "glyphorium/services/search_index/index_store.h"
#include "glyphorium/services/search_index/index_tokens.h"
#include "glyphorium/text/unicode_text.h"

namespace {

using fuzzing::require;

std::string_view line(std::string_view& text) {
  const std::string_view first = text.substr(0, text.find('\n'));
  text.remove_prefix(std::min(first.size() + 1, text.size()));
  return first;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view text(reinterpret_cast<const char*>(data), size);
  const std::string_view typed = line(text), symbol = line(text), name = text;
  glyph::SearchableItem item;
  item.symbol = symbol;
  item.title = item.symbol + "\t" + std::string(name);
  item.keywords = {item.symbol, std::string(name), "qv:", "qv: ", "entity"};
  require(item.name() == name, "name() returns the name from the title");
  require(glyph::unpackTexts(glyph::packTexts(item.keywords)) == item.keywords, "keywords are read back");
  glyph::unpackTexts(text);

  const std::string tokens = glyph::indexTokens(item);
  require(glyph::isWellFormedUtf8(tokens), "tokens are well-formed UTF-8");
  glyph::TokenTexts index;
  index.add(1, tokens);
  for (const std::string& query :
       {std::string(typed), std::string(name), "qv:" + std::string(name), item.symbol, item.title}) {
    const glyph::IndexQuery wanted = glyph::indexQuery(query);
    require(wanted.exact.empty() || !wanted.terms.empty(), "a query with words has terms");
    require(wanted.lowered == glyph::lowercased(wanted.exact),
            "the lowered text is the exact text in lower case");
    const bool found = !index.find(wanted.terms).empty();
    // The first line of the input need not match the item. The prefix "qv:" of a query is not searched for,
    // so a text with "qv:" need not find its item either.
    if (query == typed || wanted.terms.empty() ||
        glyph::lowercased(item.title).find("qv:") != std::string::npos) {
      continue;
    }
    require(found, "an item is found by its texts");
  }
  return 0;
}
