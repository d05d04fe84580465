// SPDX-License-Identifier: MIT
#include "glyphorium/search/folding.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/uscript.h>

#include <algorithm>
#include <iterator>
#include <string_view>

#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

// Letters without a decomposition in Unicode, each with the plain letters that people type instead.
constexpr struct {
  char32_t letter;
  std::string_view folded;
} plainLetters[] = {
    {U'ß', "ss"}, {U'æ', "ae"}, {U'ð', "d"},  {U'ø', "o"}, {U'þ', "th"}, {U'đ', "d"},
    {U'ħ', "h"},  {U'ı', "i"},  {U'ĳ', "ij"}, {U'ĸ', "k"}, {U'ŀ', "l"},  {U'ł', "l"},
    {U'ŉ', "n"},  {U'ŋ', "n"},  {U'œ', "oe"}, {U'ŧ', "t"}, {U'ſ', "s"},
};

UScriptCode scriptOf(UChar32 c) {
  UErrorCode status = U_ZERO_ERROR;
  return uscript_getScript(c, &status);
}

bool isNonspacingMark(UChar32 c) {
  return u_charType(c) == U_NON_SPACING_MARK;
}

void appendLatin(UChar32 c, std::string& word) {
  const auto plain = std::find_if(std::begin(plainLetters), std::end(plainLetters), [&](const auto& entry) {
    return entry.letter == static_cast<char32_t>(c);
  });
  if (plain != std::end(plainLetters))
    word += plain->folded;
  else
    word += utf8(c);
}

}  // namespace

bool appendFolded(char32_t codePoint, std::string& word) {
  if (!isAlphanumeric(codePoint)) return false;
  const auto c = static_cast<UChar32>(codePoint);
  if (scriptOf(c) != USCRIPT_LATIN) {
    word += lowercased(utf8(codePoint));
    return true;
  }
  const UChar32 lower = u_tolower(c);
  UErrorCode status = U_ZERO_ERROR;
  const icu::Normalizer2* const form = icu::Normalizer2::getNFDInstance(status);
  icu::UnicodeString decomposed;
  if (U_FAILURE(status) || !form->getDecomposition(lower, decomposed)) {
    appendLatin(lower, word);
    return true;
  }
  for (std::int32_t i = 0; i < decomposed.length(); i = decomposed.moveIndex32(i, 1)) {
    const UChar32 part = decomposed.char32At(i);
    if (!isNonspacingMark(part)) appendLatin(u_tolower(part), word);
  }
  return true;
}

bool isDiacritic(char32_t codePoint) {
  const auto c = static_cast<UChar32>(codePoint);
  return isNonspacingMark(c) && scriptOf(c) == USCRIPT_INHERITED;
}

}  // namespace glyph::search
