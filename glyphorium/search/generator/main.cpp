// SPDX-License-Identifier: MIT
// A program that builds the search indexes of the catalog and of the supplement. The build runs this program,
// so that other programs need not build the indexes at run time. The program is linked with the code of the
// library.
#include <cstdio>
#include <exception>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/generator/output_file.h"
#include "glyphorium/search/index_building.h"
#include "glyphorium/search/supplement_indexing.h"

// The library's code refers to the indexes that this program creates. These definitions satisfy the linker.
// This program never reads the indexes.
extern "C" {
extern const std::byte glyphoriumSearchIndex[];
extern const std::byte glyphoriumSearchIndexEnd[];
const std::byte glyphoriumSearchIndex[1]{};
const std::byte glyphoriumSearchIndexEnd[1]{};
extern const std::byte glyphoriumSupplementIndex[];
extern const std::byte glyphoriumSupplementIndexEnd[];
const std::byte glyphoriumSupplementIndex[1]{};
const std::byte glyphoriumSupplementIndexEnd[1]{};
}

int main(int argc, char** argv) {
  if (argc != 3) {
    std::fputs("usage: glyphorium-generate-search-index CATALOG-FILE SUPPLEMENT-FILE\n", stderr);
    return 2;
  }
  try {
    std::vector<glyph::Entity> entities;
    while (auto entity = glyph::buildInEntity(entities.size())) entities.push_back(*std::move(entity));
    const auto write = [](const char* file, const glyph::search::IndexImage& image) {
      glyph::generator::writeFile(file, {reinterpret_cast<const char*>(image.data()), image.size()});
    };
    write(argv[1], glyph::search::buildIndex(entities, glyph::search::ShownNames::elsewhere));
    write(argv[2], glyph::search::buildSupplementIndex());
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
  return 0;
}
