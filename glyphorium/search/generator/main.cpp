// SPDX-License-Identifier: MIT
// A program that builds the search index of the catalog. The build runs this program, so that other programs
// need not build the index at run time. It is linked with the code of the library.
#include <cstdio>
#include <exception>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/generator/output_file.h"
#include "glyphorium/search/index_building.h"

// The library's code refers to the index that this program creates. These definitions satisfy the linker.
// This program never reads them.
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
  try {
    std::vector<glyph::Entity> entities;
    while (auto entity = glyph::buildInEntity(entities.size())) entities.push_back(*std::move(entity));
    const glyph::search::IndexImage image = glyph::search::buildIndex(entities);
    glyph::generator::writeFile(argv[1], {reinterpret_cast<const char*>(image.data()), image.size()});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
