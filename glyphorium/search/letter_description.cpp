// SPDX-License-Identifier: MIT
#include "glyphorium/search/letter_description.h"

#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/search/words.h"

namespace glyph::search {

std::string letterWords(std::string_view name) {
  const std::string all = wordsOf(name);
  if (all.find(" letter ") == std::string::npos) return {};
  std::string words;
  for (std::string_view rest = all; !rest.empty();) {
    const std::string_view word = takePart(rest, ' ');
    if (word != "latin" && word != "small" && word != "letter" && word != "with")
      words.append(words.empty() ? "" : " ").append(word);
  }
  return words;
}

std::string letterLook(std::string_view name) {
  const std::string words = letterWords(name);
  std::string look;
  bool anyMark = false;
  for (std::string_view rest = words; !rest.empty();) {
    const std::string_view word = takePart(rest, ' ');
    const auto mark = look.empty() ? std::nullopt : findLine(searchMarks, word);
    anyMark = anyMark || mark;
    look.append(look.empty() ? "" : " ").append(mark ? *mark : word);
  }
  return anyMark ? look : std::string();
}

}  // namespace glyph::search
