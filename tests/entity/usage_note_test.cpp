// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <set>
#include <sstream>

#include "glyphorium/search/resolving.h"
#include "glyphorium/text/preferred_languages.h"
#include "tests/support/sandbox.h"

namespace glyph {
namespace {

std::optional<std::string> noteOf(const Entity& entity, const std::vector<std::string>& languages) {
  setPreferredLanguages(languages);
  auto note = entity.usageNote();
  setPreferredLanguages(std::nullopt);
  return note;
}

TEST(UsageNote, ComesFromTheTableFirstThenFromTheSupplementInEachLanguage) {
  const Entity timesSign = entityOf(U'×');      // supplementary notes only
  const Entity closingQuotes = entityOf(U'”');  // English and German notes in the table, others supplementary
  const Entity letter = entityOf(U'q');         // no notes
  const std::string english = noteOf(timesSign, {"en"}).value_or("");
  EXPECT_THAT(english, testing::HasSubstr("3 × 4"));
  EXPECT_FALSE(timesSign.additional && timesSign.additional->localizedAdvice());
  EXPECT_EQ(noteOf(timesSign, {"EN"}), english);
  EXPECT_EQ(noteOf(timesSign, {"ja", "de"}), english);
  EXPECT_EQ(noteOf(timesSign, {}), std::nullopt);
  EXPECT_EQ(noteOf(letter, {"en"}), std::nullopt);
  EXPECT_EQ(noteOf(Unicode("00d7,00d7").computedEntity().generateEntity(), {"en"}), std::nullopt);

  EXPECT_EQ(noteOf(closingQuotes, {"de"}), closingQuotes.additional->advice.at(1).text);
  EXPECT_THAT(noteOf(closingQuotes, {"fr"}).value_or(""), testing::HasSubstr("Guillemet"));
  Entity enriched = timesSign;
  enriched.additional.emplace().advice = {{"en", "A note of the host."}};
  EXPECT_EQ(noteOf(enriched, {"en"}), "A note of the host.");
}

// Every character in the file of facts has its own note in every language, either in the table or in the
// supplementary notes.
TEST(UsageNote, IsInEveryLanguageForEveryCharacterWithFacts) {
  std::set<char32_t> characters;
  std::istringstream facts(fileContent(FACTS));
  for (std::string line; std::getline(facts, line);) {
    if (!line.starts_with("# "))
      characters.insert(static_cast<char32_t>(std::stoul(line.substr(0, line.find('\t')), nullptr, 16)));
  }
  EXPECT_EQ(characters.size(), 150u);
  for (const char32_t character : characters) {
    const Entity entity = entityOf(character);
    std::set<std::string> notes;
    for (const char* const language : {"en", "de", "fr", "it", "es"})
      notes.insert(noteOf(entity, {language}).value_or(""));
    EXPECT_EQ(notes.size(), 5u) << entity.computed.hex;
    EXPECT_FALSE(notes.contains("")) << entity.computed.hex;
  }
}

}  // namespace
}  // namespace glyph
