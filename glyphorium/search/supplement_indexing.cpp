// SPDX-License-Identifier: MIT
#include "glyphorium/search/supplement_indexing.h"

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <string_view>
#include <tuple>
#include <unordered_set>
#include <vector>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/emoji_numbers.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/data/character_tables.h"
#include "glyphorium/data/name_capitalization.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index_builder.h"
#include "glyphorium/search/index_building.h"
#include "glyphorium/search/language_rules.h"
#include "glyphorium/search/skin_tones.h"
#include "glyphorium/search/static_rank.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph::search {
namespace {

enum class DocKind {
  emoji,
  variants,  // an emoji of the catalog: only the names of its variants are added
  character,
  han
};

struct Doc {
  unsigned prior;
  std::uint32_t key;
  DocKind kind;
};

// The priors of the supplement: see static_rank.h. In the catalog, private-use characters have at least
// privateUsePrior, and all other characters have less.
constexpr unsigned emojiPrior = 17;
constexpr unsigned signPrior = 25;
constexpr unsigned letterPrior = 30;
constexpr unsigned scriptPrior = behindPrivateUsePrior;
constexpr unsigned rareScriptPrior = behindPrivateUsePrior + 8;
constexpr unsigned hanPrior = behindPrivateUsePrior + 12;

bool isOneOf(std::string_view text, std::initializer_list<std::string_view> list) {
  return std::find(list.begin(), list.end(), text) != list.end();
}

unsigned priorOf(const CharacterFacts& facts) {
  if (isOneOf(facts.script, {"Common", "Inherited", ""})) {
    const auto blanks = static_cast<unsigned>(std::count(facts.name.begin(), facts.name.end(), ' '));
    return signPrior + std::min(blanks > 2 ? blanks - 2 : 0u, 5u);
  }
  if (isOneOf(facts.script, {"Latin", "Greek", "Cyrillic"})) return letterPrior;
  // The Basic Multilingual Plane has the scripts that people use today, and few others.
  return facts.codePoint < 0x10000 ? scriptPrior : rareScriptPrior;
}

// Returns the prior of a Han character. The more languages have a reading for it, the more common the
// character is.
unsigned hanPriorOf(std::string_view line) {
  unsigned missing = 0;
  for (std::size_t reading = 1; reading <= 4; ++reading) missing += column(line, reading).empty();
  return hanPrior + missing;
}

// Returns the names of an emoji's variants in a language, without the names of skin tones: "kiss: person,
// person". Leaves out names that are equal to the name of the emoji or to each other.
std::vector<std::string> variantNames(std::size_t place, std::string_view language) {
  std::vector<std::string> names{wordsOf(annotationOf(emojiAt(place).text, language).name)};
  for (const std::size_t variant : emojiVariants(place)) {
    std::string name = joined(wordsWithoutSkinTones(annotationOf(emojiAt(variant).text, language).name), " ");
    if (std::find(names.begin(), names.end(), name) == names.end()) names.push_back(std::move(name));
  }
  names.erase(names.begin());
  return names;
}

bool hasVariantNames(std::size_t place) {
  return std::any_of(searchLanguages.begin(), searchLanguages.end(), [&](const SearchLanguage& language) {
    return !variantNames(place, language.code).empty();
  });
}

void addVariantNames(IndexBuilder& builder, std::size_t place) {
  for (const SearchLanguage& language : searchLanguages) {
    for (const std::string& name : variantNames(place, language.code))
      builder.addText(PhraseKind::textToSpeechName, language.code, name);
  }
}

std::vector<Doc> docsOfSupplement() {
  std::unordered_set<char32_t> known;
  for (std::size_t place = 0; place < preparedRowCount(); ++place) known.insert(preparedRow(place).codePoint);
  std::vector<Doc> docs;
  for (std::size_t place = 0; place < emojiCount(); ++place) {
    if (emojiBase(place) != place) continue;
    const char32_t key = *characterKey(emojiAt(place).text);
    if (known.insert(key).second)
      docs.push_back({emojiPrior, key, DocKind::emoji});
    else if (hasVariantNames(place))
      docs.push_back({emojiPrior, key, DocKind::variants});
  }
  for (const std::string& text : supplementTexts()) {
    const std::u32string points = codePoints(text);
    if (points.size() != 1 || !known.insert(points.front()).second) continue;
    const CharacterFacts facts = characterFacts(points.front());
    if (facts.hanDefinition.empty())
      docs.push_back({priorOf(facts), points.front(), DocKind::character});
    else
      known.erase(points.front());
  }
  for (std::size_t i = 0; i < hanReadings.size(); ++i) {
    if (known.insert(hanReadings.codePoint(i)).second)
      docs.push_back({hanPriorOf(hanReadings.line(i)), hanReadings.codePoint(i), DocKind::han});
  }
  std::sort(docs.begin(), docs.end(),
            [](const Doc& a, const Doc& b) { return std::pair(a.prior, a.key) < std::pair(b.prior, b.key); });
  return docs;
}

// Adds "flag de" for the flag of Germany, because people search for flags by the codes of countries. The
// regional indicators of a flag spell the code.
void addCountryCode(IndexBuilder& builder, std::string_view text) {
  std::string code;
  for (const char32_t point : codePoints(text)) {
    if (point < 0x1F1E6 || point > 0x1F1FF) return;
    code += static_cast<char>('a' + (point - 0x1F1E6));
  }
  builder.addText(PhraseKind::alias, "", "flag " + code);
}

void addCharacter(IndexBuilder& builder, char32_t codePoint) {
  addName(builder, capitalizedName(characterName(codePoint)));
  addRemarks(builder, codePoint);
  addOtherNames(builder, codePoint);
}

// Returns the definition without its parts in parentheses, which are about other characters.
std::string withoutParentheses(std::string_view definition) {
  std::string rest;
  int depth = 0;
  for (const char c : definition) {
    if (c == '(') ++depth;
    if (depth == 0) rest += c;
    if (c == ')' && depth > 0) --depth;
  }
  return rest;
}

void addHan(IndexBuilder& builder, std::string_view line) {
  static const Languages english{&searchLanguages.front()};
  std::set<std::string> known;
  const std::string definition = withoutParentheses(column(line, 0));
  for (std::string_view senses = definition; !senses.empty();) {
    std::string_view commaList = takePart(senses, ';');
    while (!commaList.empty()) {
      // Stop words and function words are left out, because they are a third of all words and say nothing
      // about the character.
      std::string sense;
      for (WordReader reader(takePart(commaList, ',')); reader.next();) {
        if (isStopWord(reader.word()) || isFunctionWord(english, reader.word()) || reader.word() == "to")
          continue;
        sense.append(sense.empty() ? "" : " ").append(reader.word());
      }
      if (!sense.empty() && known.insert(sense).second) builder.addText(PhraseKind::meaning, "en", sense);
    }
  }
  known.clear();
  for (std::size_t i = 1; i <= 4; ++i) {
    for (std::string_view readings = column(line, i); !readings.empty();) {
      const std::string reading = wordsOf(takePart(readings, ' '));
      if (!reading.empty() && known.insert(reading).second) builder.addText(PhraseKind::reading, "", reading);
    }
  }
}

}  // namespace

IndexImage buildSupplementIndex() {
  IndexBuilder builder(IndexBuilder::Form::shapes);
  for (const Doc& doc : docsOfSupplement()) {
    const std::string text = textOfCharacterKey(doc.key);
    builder.addDoc(doc.key, doc.key, static_cast<std::uint8_t>(doc.prior));
    if (doc.kind == DocKind::han) {
      addHan(builder, hanReadings.find(doc.key));
      continue;
    }
    if (doc.kind == DocKind::emoji || doc.kind == DocKind::variants)
      addVariantNames(builder, *emojiPlace(text));
    if (doc.kind == DocKind::variants) continue;
    if (doc.kind == DocKind::emoji) addCountryCode(builder, text);
    if (doc.key < firstEmojiNumber) addCharacter(builder, doc.key);
    addAnnotations(builder, text);
  }
  return std::move(builder).image();
}

}  // namespace glyph::search
