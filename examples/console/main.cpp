// SPDX-License-Identifier: MIT
// Finds characters by words:  console arrow left
#include <glyphorium/glyphorium.h>

#include <iostream>

int main(int argc, char** argv) {
  const std::string words = glyph::joined(std::vector<std::string>(argv + 1, argv + argc), " ");
  const glyph::CatalogSearch search;  // the whole catalog, and the characters that the user added
  glyph::SearchOptions options;
  options.limit = 5;
  const glyph::SearchResults found = search.query(words, options);
  for (const glyph::SearchResult& result : found.results) {
    const glyph::Entity entity = search.entity(result);
    std::cout << glyph::visibleSymbol(entity.computed.symbol) << "  "
              << glyph::copyForm("code-point")->text(entity).value_or("") << "  " << entity.name() << "\n";
  }
  if (found.results.empty()) std::cerr << "nothing found\n";
  return found.results.empty() ? 1 : 0;
}
