// SPDX-License-Identifier: MIT
#include "glyphorium/data/embedded_texts.h"

#include <algorithm>

#include "glyphorium/data/embedded_image.h"

namespace glyph {

std::span<const EmbeddedText> embeddedTexts() noexcept {
  return {embeddedTextList, embeddedTextCount};
}

const EmbeddedText* embeddedText(std::string_view constant) noexcept {
  const auto all = embeddedTexts();
  const auto found =
      std::find_if(all.begin(), all.end(), [&](auto& text) { return text.constant == constant; });
  return found == all.end() ? nullptr : &*found;
}

}  // namespace glyph
