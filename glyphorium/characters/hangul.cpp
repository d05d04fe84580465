// SPDX-License-Identifier: MIT
#include "glyphorium/characters/hangul.h"

#include <iterator>

#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

constexpr char32_t firstSyllable = 0xAC00;
constexpr char32_t lastSyllable = 0xD7A3;
constexpr char32_t firstInitial = 0x1100;
constexpr char32_t firstVowel = 0x1161;
constexpr char32_t beforeFirstFinal = 0x11A7;  // stands for no final consonant
constexpr std::string_view prefix = "HANGUL SYLLABLE ";

// The short names of the letters, in the order of their code points.
constexpr std::string_view initials[] = {"G",  "GG", "N", "D",  "DD", "R", "M", "B", "BB", "S",
                                         "SS", "",   "J", "JJ", "C",  "K", "T", "P", "H"};
constexpr std::string_view vowels[] = {"A",  "AE", "YA", "YAE", "EO", "E",  "YEO", "YE", "O",  "WA", "WAE",
                                       "OE", "YO", "U",  "WEO", "WE", "WI", "YU",  "EU", "YI", "I"};
constexpr std::string_view finals[] = {"",   "G",  "GG", "GS", "N",  "NJ", "NH", "D", "L",  "LG",
                                       "LM", "LB", "LS", "LT", "LP", "LH", "M",  "B", "BS", "S",
                                       "SS", "NG", "J",  "C",  "K",  "T",  "P",  "H"};

// The numbers of the letters of a syllable in the lists above.
struct Letters {
  char32_t initial;
  char32_t vowel;
  char32_t finalConsonant;
};

Letters lettersOf(char32_t syllable) {
  const char32_t number = syllable - firstSyllable;
  const char32_t perVowel = std::size(finals);
  const char32_t perInitial = std::size(vowels) * perVowel;
  return {number / perInitial, number % perInitial / perVowel, number % perVowel};
}

}  // namespace

bool isHangulSyllable(char32_t codePoint) noexcept {
  return codePoint >= firstSyllable && codePoint <= lastSyllable;
}

std::string hangulName(char32_t syllable) {
  const Letters letters = lettersOf(syllable);
  std::string name(prefix);
  name += initials[letters.initial];
  name += vowels[letters.vowel];
  return name += finals[letters.finalConsonant];
}

std::optional<char32_t> hangulSyllableNamed(std::string_view name) {
  if (!ascii::equalIgnoringCase(name.substr(0, prefix.size()), prefix)) return std::nullopt;
  for (char32_t syllable = firstSyllable; syllable <= lastSyllable; ++syllable) {
    if (ascii::equalIgnoringCase(hangulName(syllable), name)) return syllable;
  }
  return std::nullopt;
}

std::u32string hangulDecomposition(char32_t syllable) {
  const Letters letters = lettersOf(syllable);
  if (letters.finalConsonant != 0)
    return {syllable - letters.finalConsonant, beforeFirstFinal + letters.finalConsonant};
  return {firstInitial + letters.initial, firstVowel + letters.vowel};
}

}  // namespace glyph
