// SPDX-License-Identifier: MIT
#include "glyphorium/search/prepared_indexes.h"

#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/entity/prepared_entities.h"
#include "glyphorium/search/index_image.h"

namespace glyph::search {

const Index& catalogIndex() {
  static const Index index = [] {
    Index opened = openIndex(catalogIndexImage());
    opened.nameOf = [](std::uint32_t place) { return preparedName(place); };
    return opened;
  }();
  return index;
}

const Index& supplementIndex() {
  static const Index index = [] {
    Index opened = openIndex(supplementIndexImage());
    opened.nameOf = [](std::uint32_t key) { return shownCharacterName(textOfCharacterKey(key)); };
    opened.weighedWith = &catalogIndex();
    return opened;
  }();
  return index;
}

}  // namespace glyph::search
