// SPDX-License-Identifier: MIT
#include "glyphorium/search/words.h"

#include <algorithm>

#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

// U+00C0 to U+017F in lower case without diacritics, two bytes each; blank: a sign.
constexpr char32_t foldedFirst = 0xC0;
constexpr std::string_view foldedLatin =
    "a a a a a a aec e e e e i i i i d n o o o o o   o u u u u y thss"
    "a a a a a a aec e e e e i i i i d n o o o o o   o u u u u y thy "
    "a a a a a a c c c c c c c c d d d d e e e e e e e e e e g g g g "
    "g g g g h h h h i i i i i i i i i i ijijj j k k k l l l l l l l "
    "l l l n n n n n n n n n o o o o o o oeoer r r r r r s s s s s s "
    "s s t t t t t t u u u u u u u u u u u u w w y y y z z z z z z s ";

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

// The bytes that the UTF-8 sequence at the position takes, were it well-formed; at least one.
std::size_t sequenceSize(std::string_view text, std::size_t position) {
  const auto lead = static_cast<unsigned char>(text[position]);
  const std::size_t size = lead < 0xC0 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  return std::min(size, text.size() - position);
}

}  // namespace

// Appends the letter at the position and goes behind it; false, without moving, where there is none.
bool WordReader::appendNonAscii(std::size_t& position) {
  const std::size_t size = sequenceSize(text_, position);
  const std::string_view sequence = text_.substr(position, size);
  const std::u32string points = codePoints(sequence);
  if (points.size() != 1) return false;
  const char32_t point = points.front();
  if (point >= 0x300 && point <= 0x36F) {
    // A diacritic that stands behind its letter.
    if (word_.empty()) return false;
  } else if (point >= foldedFirst && point - foldedFirst < foldedLatin.size() / 2) {
    const std::string_view folded = foldedLatin.substr((point - foldedFirst) * 2, 2);
    if (folded.front() == ' ') return false;
    word_ += folded.front();
    if (folded.back() != ' ') word_ += folded.back();
  } else {
    if (!isAlphanumeric(point)) return false;
    word_ += lowercased(sequence);
  }
  position += size;
  return true;
}

bool WordReader::next() {
  word_.clear();
  std::size_t position = end_;
  while (position < text_.size()) {
    const char c = text_[position];
    if (ascii::isAlphanumeric(c)) {
      if (word_.empty()) begin_ = position;
      word_ += ascii::lowered(c);
      ++position;
      continue;
    }
    const bool first = word_.empty();
    const std::size_t start = position;
    if (!isAscii(c) && appendNonAscii(position)) {
      if (first) begin_ = start;
      continue;
    }
    if (!word_.empty()) break;
    position += isAscii(c) ? 1 : sequenceSize(text_, position);
  }
  end_ = position;
  return !word_.empty();
}

std::string wordsOf(std::string_view text) {
  std::string words;
  for (WordReader reader(text); reader.next();) {
    if (!words.empty()) words += ' ';
    words += reader.word();
  }
  return words;
}

std::string signKey(std::string_view text) {
  std::string key;
  bool hasWord = false;
  bool hasSign = false;
  constexpr std::string_view joining = " -_.,'";
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ' ') continue;
    key += c;
    if (ascii::isAlphanumeric(c)) {
      hasWord = true;
    } else if (isAscii(c)) {
      hasSign = hasSign || joining.find(c) == std::string_view::npos;
    } else {
      const std::size_t size = sequenceSize(text, i);
      const std::u32string points = codePoints(text.substr(i, size));
      const bool letter =
          points.size() == 1 && (isAlphanumeric(points.front()) || isCombining(points.front()));
      const bool apostrophe = points.size() == 1 && points.front() == U'\u2019';
      hasWord = hasWord || letter;
      hasSign = hasSign || !(letter || apostrophe);
      key.append(text.substr(i + 1, size - 1));
      i += size - 1;
    }
  }
  if (hasWord && !hasSign) return {};
  return lowercased(key);
}

}  // namespace glyph::search
