// SPDX-License-Identifier: MIT
#include "glyphorium/characters/emoji.h"

#include <algorithm>

#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

constexpr std::string_view variationSelector = "\uFE0F";

enum EmojiColumn : std::size_t {
  textColumn,
  kindColumn,
  versionColumn,
  groupColumn,
  subgroupColumn,
  placeColumn,
  baseColumn
};

std::string withoutSelectors(std::string_view text) {
  std::string result(text);
  for (std::size_t at; (at = result.find(variationSelector)) != std::string::npos;)
    result.erase(at, variationSelector.size());
  return result;
}

std::size_t numberIn(std::string_view line, std::size_t columnNumber) {
  return ascii::number(column(line, columnNumber), 10).value_or(0);
}

// Returns the position of the emoji in emojiTable. The text must not contain variation selectors.
std::optional<std::size_t> position(std::string_view text) {
  std::size_t begin = 0;
  for (std::size_t end = emojiTable.size(); begin < end;) {
    const std::size_t middle = begin + (end - begin) / 2;
    const std::string found = withoutSelectors(column(emojiTable.line(middle), textColumn));
    if (found == text) return middle;
    (found < text ? begin : end) = found < text ? middle + 1 : middle;
  }
  return std::nullopt;
}

// Returns the line of the emoji with this index in the order of Unicode's lists. Empty if the index is too
// large.
std::string_view lineAt(std::size_t place) noexcept {
  return place < emojiOrder.size() ? emojiTable.line(*ascii::number(emojiOrder.line(place), 10))
                                   : std::string_view();
}

}  // namespace

std::size_t emojiCount() noexcept {
  return emojiTable.size();
}

Emoji emojiAt(std::size_t place) noexcept {
  const std::string_view line = lineAt(place);
  const std::string_view base = line.empty() ? line : emojiTable.line(numberIn(line, baseColumn));
  return {column(line, textColumn), column(line, kindColumn), column(line, versionColumn),
          column(base, groupColumn), column(base, subgroupColumn)};
}

std::optional<std::size_t> emojiPlace(std::string_view text) {
  const auto found = position(withoutSelectors(text));
  return found ? std::optional(numberIn(emojiTable.line(*found), placeColumn)) : std::nullopt;
}

std::size_t emojiBase(std::size_t place) noexcept {
  const std::string_view line = lineAt(place);
  return line.empty() ? place : numberIn(emojiTable.line(numberIn(line, baseColumn)), placeColumn);
}

std::vector<std::size_t> emojiVariants(std::size_t place) {
  const std::size_t base = emojiBase(place);
  std::vector<std::size_t> variants;
  // The variants with skin tones directly follow the emoji without a tone.
  for (std::size_t next = base + 1; next < emojiCount() && emojiBase(next) == base; ++next)
    variants.push_back(next);
  return variants;
}

std::string withSkinTone(std::string_view text, SkinTone tone) {
  const auto place = emojiPlace(text);
  if (!place) return std::string(text);
  const std::vector<std::size_t> variants = emojiVariants(*place);
  if (variants.empty()) return std::string(text);
  if (tone == SkinTone::none) return std::string(emojiAt(emojiBase(*place)).text);
  const char32_t wanted =
      lightestModifier + static_cast<char32_t>(tone) - static_cast<char32_t>(SkinTone::light);
  for (const std::size_t variant : variants) {
    const std::u32string points = codePoints(emojiAt(variant).text);
    const bool isWanted = std::all_of(points.begin(), points.end(), [&](char32_t point) {
      return !isSkinToneModifier(point) || point == wanted;
    });
    if (isWanted) return std::string(emojiAt(variant).text);
  }
  return std::string(text);
}

std::optional<char32_t> characterKey(std::string_view text) {
  const std::u32string points = codePoints(text);
  if (points.size() == 1) return points.front();
  const std::string plain = withoutSelectors(text);
  const std::u32string rest = codePoints(plain);
  if (rest.size() == 1) return rest.front();
  const auto found = position(plain);
  return found ? std::optional(static_cast<char32_t>(firstEmojiNumber + *found)) : std::nullopt;
}

std::string textOfCharacterKey(char32_t key) {
  if (key < firstEmojiNumber) return utf8(key);
  const std::size_t place = key - firstEmojiNumber;
  return place < emojiTable.size() ? std::string(column(emojiTable.line(place), textColumn)) : std::string();
}

}  // namespace glyph
