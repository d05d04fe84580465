// SPDX-License-Identifier: MIT
#include "glyphorium/characters/annotations.h"

#include <algorithm>

#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

void append(std::vector<std::string>& list, std::string_view texts) {
  while (!texts.empty()) {
    const std::size_t end = std::min(texts.find('\n'), texts.size());
    if (end > 0) list.emplace_back(texts.substr(0, end));
    texts.remove_prefix(std::min(end + 1, texts.size()));
  }
}

// Returns the part of an emoji's name that describes the skin tone in `text`, in this language: ": dark skin
// tone".
std::string nameOfTone(std::string_view text, std::string_view language) {
  for (const char32_t point : codePoints(text)) {
    if (!isSkinToneModifier(point)) continue;
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
    const std::string line = one.texts.find(*key);
    annotation.name = column(line, 0);
    append(annotation.keywords, column(line, 1));
  }
  const auto place = emojiPlace(text);
  if (!place || emojiBase(*place) == *place) return annotation;
  const CharacterAnnotation base = annotationOf(emojiAt(emojiBase(*place)).text, language);
  if (annotation.name.empty() && !base.name.empty()) annotation.name = base.name + nameOfTone(text, language);
  if (annotation.keywords.empty()) annotation.keywords = base.keywords;
  return annotation;
}

}  // namespace glyph
