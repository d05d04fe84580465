// SPDX-License-Identifier: MIT
#include "glyphorium/characters/annotations.h"

#include <algorithm>

#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

void append(std::vector<std::string_view>& list, std::string_view texts, char separator) {
  while (!texts.empty()) {
    const std::size_t end = std::min(texts.find(separator), texts.size());
    if (end > 0) list.push_back(texts.substr(0, end));
    texts.remove_prefix(std::min(end + 1, texts.size()));
  }
}

// The characters of the table of Unicode 13.0 have their annotations among the data of the search.
CharacterAnnotation annotationForSearch(char32_t codePoint, std::string_view language) {
  CharacterAnnotation annotation;
  for (std::size_t i = 0; i < searchFactCount; ++i) {
    const SearchFacts& facts = searchFactList[i];
    if (facts.kind != SearchFactKind::annotation || facts.language != language) continue;
    const auto position = facts.index.find(codePoint);
    if (!position) break;
    const std::string_view texts = facts[*position].texts;
    const std::size_t end = std::min(texts.find('\n'), texts.size());
    annotation.name = texts.substr(0, end);
    append(annotation.keywords, texts.substr(std::min(end + 1, texts.size())), '\n');
  }
  return annotation;
}

// Returns what the language adds to the name of an emoji for the skin tone in the text: ": dark skin tone".
std::string nameOfTone(std::string_view text, std::string_view language) {
  for (const char32_t point : codePoints(text)) {
    if (point < 0x1F3FB || point > 0x1F3FF) continue;
    const std::string sample = utf8(toneSample);
    const std::string name = annotationOf(sample, language).name;
    const std::string toned = annotationOf(sample + utf8(point), language).name;
    return toned.starts_with(name) ? toned.substr(name.size()) : std::string();
  }
  return {};
}

}  // namespace

CharacterAnnotation annotationOf(std::string_view text, std::string_view language) {
  CharacterAnnotation annotation;
  const auto key = characterKey(text);
  if (!key) return annotation;
  for (const CharacterAnnotations& one : characterAnnotations) {
    if (one.language != language) continue;
    const std::string_view line = one.texts.find(*key).value_or("");
    annotation.name = column(line, 0);
    append(annotation.keywords, column(line, 1), '|');
  }
  if (annotation.name.empty() && annotation.keywords.empty())
    annotation = annotationForSearch(*key, language);
  const auto place = emojiPlace(text);
  if (!place || emojiBase(*place) == *place) return annotation;
  const CharacterAnnotation base = annotationOf(emojiAt(emojiBase(*place)).text, language);
  if (annotation.name.empty() && !base.name.empty()) annotation.name = base.name + nameOfTone(text, language);
  if (annotation.keywords.empty()) annotation.keywords = base.keywords;
  return annotation;
}

}  // namespace glyph
