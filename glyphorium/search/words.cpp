// SPDX-License-Identifier: MIT
#include "glyphorium/search/words.h"

#include <cstdint>

#include "glyphorium/search/folding.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/text/utf8_decoding.h"

namespace glyph::search {
namespace {

bool isAscii(char c) {
  return static_cast<unsigned char>(c) < 0x80;
}

}  // namespace

// Appends the folded letter or digit at `position` to the word and moves `position` behind it. Skips a
// diacritic inside a word. If the character is not part of a word, returns false and does not change
// `position`.
bool WordReader::appendNonAscii(std::size_t& position) {
  std::size_t end = position;
  const std::int32_t codePoint = nextCodePoint(text_, end);
  if (codePoint < 0) return false;
  const auto point = static_cast<char32_t>(codePoint);
  const bool isPart = isDiacritic(point) ? !word_.empty() : appendFolded(point, word_);
  if (isPart) position = end;
  return isPart;
}

// One letter before an apostrophe is an article or a preposition and does not count: the word of "l’œil" is
// "oeil".
bool WordReader::isElided() const {
  if (word_.size() != 1 || end_ >= text_.size()) return false;
  constexpr std::string_view apostrophe = "\u2019";
  const std::string_view rest = text_.substr(end_);
  const std::size_t size = rest[0] == '\'' ? 1 : rest.starts_with(apostrophe) ? apostrophe.size() : 0;
  return size > 0 && rest.size() > size && (ascii::isLetter(rest[size]) || !isAscii(rest[size]));
}

bool WordReader::next() {
  do {
    read();
  } while (isElided());
  return !word_.empty();
}

void WordReader::read() {
  word_.clear();
  std::size_t position = end_;
  while (position < text_.size()) {
    const char c = text_[position];
    // Nearly all letters are ASCII. ICU would need much more time for ASCII letters.
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
    if (isAscii(c))
      ++position;
    else
      nextCodePoint(text_, position);
  }
  end_ = position;
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
  for (std::size_t i = 0; i < text.size();) {
    const char c = text[i];
    if (c == ' ') {
      ++i;
    } else if (isAscii(c)) {
      key += c;
      ++i;
      if (ascii::isAlphanumeric(c))
        hasWord = true;
      else
        hasSign = hasSign || joining.find(c) == std::string_view::npos;
    } else {
      const std::size_t begin = i;
      const std::int32_t codePoint = nextCodePoint(text, i);
      key += text.substr(begin, i - begin);
      const auto point = static_cast<char32_t>(codePoint);
      const bool letter = codePoint >= 0 && (isAlphanumeric(point) || isCombining(point));
      hasWord = hasWord || letter;
      hasSign = hasSign || !(letter || point == U'\u2019');  // an apostrophe
    }
  }
  if (hasWord && !hasSign) return {};
  return lowercased(key);
}

}  // namespace glyph::search
