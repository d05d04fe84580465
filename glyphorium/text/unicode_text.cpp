// SPDX-License-Identifier: MIT
#include "glyphorium/text/unicode_text.h"

#include <unicode/brkiter.h>
#include <unicode/bytestream.h>
#include <unicode/casemap.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/utext.h>
#include <unicode/utf8.h>

#include <algorithm>
#include <memory>

#include "glyphorium/text/ascii.h"
#include "glyphorium/text/utf8_decoding.h"

namespace glyph {
namespace {

bool isAscii(std::string_view text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

std::int32_t length32(std::string_view text) {
  return static_cast<std::int32_t>(text.size());
}

// Returns this thread's iterator over grapheme clusters. Each thread keeps one iterator, because creating it
// takes about a hundred times as long as iterating over a short text.
icu::BreakIterator* characterIterator() {
  thread_local const std::unique_ptr<icu::BreakIterator> iterator = [] {
    UErrorCode status = U_ZERO_ERROR;
    return std::unique_ptr<icu::BreakIterator>(
        icu::BreakIterator::createCharacterInstance(icu::Locale::getRoot(), status));
  }();
  // NOLINTNEXTLINE(clang-analyzer-cplusplus.NewDelete): a thread_local outlives this call
  return iterator.get();
}

// Sets the iterator to the text. The destructor resets the iterator, so that it no longer refers to the
// caller's text.
class IteratedText {
 public:
  IteratedText(icu::BreakIterator& iterator, std::string_view text, UErrorCode& status)
      : iterator_(iterator),
        text_(utext_openUTF8(nullptr, text.data(), static_cast<std::int64_t>(text.size()), &status)) {
    iterator_.setText(text_, status);
  }
  ~IteratedText() {
    iterator_.setText(icu::UnicodeString());
    utext_close(text_);
  }
  IteratedText(const IteratedText&) = delete;
  IteratedText& operator=(const IteratedText&) = delete;

 private:
  icu::BreakIterator& iterator_;
  UText* const text_;
};

}  // namespace

std::string lowercased(std::string_view text) {
  std::string result;
  if (isAscii(text)) {
    result.resize(text.size());
    std::transform(text.begin(), text.end(), result.begin(), ascii::lowered);
    return result;
  }
  UErrorCode status = U_ZERO_ERROR;
  icu::StringByteSink<std::string> sink(&result, length32(text));
  icu::CaseMap::utf8ToLower("", 0, icu::StringPiece(text.data(), length32(text)), sink, nullptr, status);
  return U_SUCCESS(status) ? result : std::string(text);
}

std::vector<std::string_view> graphemeClusters(std::string_view text) {
  std::vector<std::string_view> clusters;
  const auto asciiClusters = [&] {
    clusters.reserve(text.size());
    for (std::size_t i = 0; i < text.size();) {
      const std::size_t size = text.substr(i, 2) == "\r\n" ? 2 : 1;
      clusters.push_back(text.substr(i, size));
      i += size;
    }
  };
  icu::BreakIterator* const iterator = isAscii(text) ? nullptr : characterIterator();
  if (!iterator) {
    asciiClusters();
    return clusters;
  }
  UErrorCode status = U_ZERO_ERROR;
  const IteratedText iterated(*iterator, text, status);
  if (U_FAILURE(status)) {
    asciiClusters();
    return clusters;
  }
  std::int32_t begin = iterator->first();
  for (std::int32_t end = iterator->next(); end != icu::BreakIterator::DONE;
       begin = end, end = iterator->next()) {
    clusters.push_back(text.substr(static_cast<std::size_t>(begin), static_cast<std::size_t>(end - begin)));
  }
  return clusters;
}

std::u32string codePoints(std::string_view text) {
  std::u32string result;
  result.reserve(text.size());
  for (std::size_t i = 0; i < text.size();) {
    const UChar32 codePoint = nextCodePoint(text, i);
    result.push_back(codePoint < 0 ? U'\uFFFD' : static_cast<char32_t>(codePoint));
  }
  return result;
}

bool isWellFormedUtf8(std::string_view text) {
  for (std::size_t i = 0; i < text.size();) {
    if (nextCodePoint(text, i) < 0) return false;
  }
  return true;
}

std::string utf8(std::int64_t codePoint) {
  if (codePoint < 0 || codePoint > 0x10FFFF || (codePoint >= 0xD800 && codePoint <= 0xDFFF)) return {};
  char buffer[U8_MAX_LENGTH];
  std::int32_t size = 0;
  U8_APPEND_UNSAFE(buffer, size, static_cast<UChar32>(codePoint));
  return {buffer, static_cast<std::size_t>(size)};
}

bool isCombining(char32_t codePoint) {
  return (U_GET_GC_MASK(static_cast<UChar32>(codePoint)) & U_GC_M_MASK) != 0;
}

bool isAlphanumeric(char32_t codePoint) {
  return u_isalnum(static_cast<UChar32>(codePoint)) != 0;
}

std::string composed(std::string_view text) {
  if (isAscii(text) || !isWellFormedUtf8(text)) return std::string(text);
  UErrorCode status = U_ZERO_ERROR;
  std::string result;
  icu::StringByteSink<std::string> sink(&result, length32(text));
  const icu::Normalizer2* const form = icu::Normalizer2::getNFCInstance(status);
  if (U_SUCCESS(status))
    form->normalizeUTF8(0, icu::StringPiece(text.data(), length32(text)), sink, nullptr, status);
  return U_SUCCESS(status) ? result : std::string(text);
}

}  // namespace glyph
