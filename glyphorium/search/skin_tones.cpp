// SPDX-License-Identifier: MIT
#include "glyphorium/search/skin_tones.h"

#include <algorithm>
#include <utility>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/words.h"
#include "glyphorium/text/never_destroyed.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

SkinTone toneOf(char32_t modifier) {
  return static_cast<SkinTone>(static_cast<char32_t>(SkinTone::light) + (modifier - lightestModifier));
}

std::vector<std::string> listOfWords(std::string_view text) {
  std::vector<std::string> words;
  for (WordReader reader(text); reader.next();) words.emplace_back(reader.word());
  return words;
}

struct ToneName {
  std::vector<std::string> words;
  SkinTone tone;
};

// The names of all tones in all languages. Names with more words come first, because "medium dark skin tone"
// contains "dark skin tone".
const std::vector<ToneName>& toneNames() {
  static NeverDestroyed<const std::vector<ToneName>> all([] {
    std::vector<ToneName> names;
    const std::string sample = utf8(toneSample);
    for (const SearchLanguage& language : searchLanguages) {
      const std::string plain = annotationOf(sample, language.code).name;
      for (char32_t modifier = lightestModifier; modifier <= darkestModifier; ++modifier) {
        const std::string toned = annotationOf(sample + utf8(modifier), language.code).name;
        if (plain.empty() || !toned.starts_with(plain) || toned.size() == plain.size()) continue;
        names.push_back({listOfWords(std::string_view(toned).substr(plain.size())), toneOf(modifier)});
      }
    }
    std::stable_sort(names.begin(), names.end(),
                     [](const ToneName& a, const ToneName& b) { return a.words.size() > b.words.size(); });
    return names;
  }());
  return *all;
}

}  // namespace

std::vector<SkinTone> takeSkinTones(std::vector<std::string>& words) {
  std::vector<SkinTone> tones;
  if (words.size() < 2) return tones;
  for (auto at = words.begin(); at != words.end();) {
    const auto isHere = [&](const ToneName& name) {
      return static_cast<std::size_t>(words.end() - at) >= name.words.size() &&
             std::equal(name.words.begin(), name.words.end(), at);
    };
    const auto found = std::find_if(toneNames().begin(), toneNames().end(), isHere);
    if (found == toneNames().end()) {
      ++at;
      continue;
    }
    tones.push_back(found->tone);
    at = words.erase(at, at + static_cast<std::ptrdiff_t>(found->words.size()));
  }
  return tones;
}

std::vector<SkinTone> skinTonesOf(std::string_view emoji) {
  std::vector<SkinTone> tones;
  for (const char32_t point : codePoints(emoji)) {
    if (isSkinToneModifier(point)) tones.push_back(toneOf(point));
  }
  return tones;
}

std::vector<std::string> wordsWithoutSkinTones(std::string_view name) {
  std::vector<std::string> words = listOfWords(name);
  takeSkinTones(words);
  return words;
}

}  // namespace glyph::search
