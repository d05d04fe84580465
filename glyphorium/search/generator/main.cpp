// SPDX-License-Identifier: MIT
// Builds the search index of the catalog, so that nobody waits for that at run time. The build runs it, with
// the library's own code in it.
#include <cstdio>
#include <fstream>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/index.h"

// What this program makes, and therefore lacks.
extern "C" {
extern const std::byte glyphoriumSearchIndex[];
extern const std::byte glyphoriumSearchIndexEnd[];
const std::byte glyphoriumSearchIndex[1]{};
const std::byte glyphoriumSearchIndexEnd[1]{};
}

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: glyphorium-generate-search-index FILE\n", stderr);
    return 2;
  }
  std::vector<glyph::Entity> entities;
  while (auto entity = glyph::buildInEntity(entities.size())) entities.push_back(*std::move(entity));
  const glyph::search::IndexImage image = glyph::search::buildIndex(entities);
  std::ofstream file(argv[1], std::ios::binary);
  file.write(reinterpret_cast<const char*>(image.data()), static_cast<std::streamsize>(image.size()));
  file.close();
  if (!file) std::fprintf(stderr, "%s cannot be written\n", argv[1]);
  return file ? 0 : 1;
}
