// SPDX-License-Identifier: MIT
#include "glyphorium/characters/related.h"

#include <gmock/gmock.h>

#include <map>

#include "glyphorium/characters/typing.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

using testing::Contains;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;

std::map<Relation, std::u32string> relationsOf(char32_t codePoint) {
  std::map<Relation, std::u32string> relations;
  for (const RelatedCharacters& related : relatedCharacters(codePoint)) {
    EXPECT_FALSE(related.characters.empty());
    EXPECT_FALSE(relationName(related.relation).empty());
    EXPECT_TRUE(relations.emplace(related.relation, related.characters).second);
  }
  return relations;
}

TEST(RelatedCharacters, AgreeWithUnicode) {
  EXPECT_EQ(relationsOf(U'é')[Relation::upperCase], U"É");
  EXPECT_EQ(relationsOf(U'é')[Relation::base], U"e");
  EXPECT_THAT(relationsOf(U'e')[Relation::withMark], IsSupersetOf({U'è', U'é', U'ẽ'}));
  EXPECT_EQ(relationsOf(U'(')[Relation::mirrorImage], U")");
  EXPECT_EQ(relationsOf(U'①')[Relation::standsFor], U"1");
  EXPECT_THAT(relationsOf(U'1')[Relation::compatibilityForm], Contains(U'①'));
  EXPECT_EQ(relationsOf(U'ǆ')[Relation::titleCase], U"ǅ");
  EXPECT_THAT(relationsOf(U'<')[Relation::seeAlso], Contains(U'‹'));
  EXPECT_EQ(relationsOf(U'ß').count(Relation::upperCase), 0U);
  EXPECT_THAT(relationsOf(0x1FAE0), IsEmpty());
  EXPECT_THAT(relationsOf(0x110000), IsEmpty());
}

TEST(LookAlikes, AreTheOtherCharactersOfTheClass) {
  EXPECT_THAT(lookAlikes(U'–').characters, IsSupersetOf({U'‐', U'−', U'‑'}));
  EXPECT_THAT(lookAlikes(U'–').characters, Not(Contains(U'–')));
  EXPECT_THAT(lookAlikes(U'a').characters, IsSupersetOf({U'а', U'α'}));
  EXPECT_THAT(lookAlikes(U'а').characters, Contains(U'a'));
  EXPECT_EQ(lookAlikes(U'Æ').text, "AE");
  EXPECT_THAT(lookAlikes(U'漢').characters, IsEmpty());
  EXPECT_THAT(lookAlikes(0x110000).characters, IsEmpty());
}

TEST(WaysToType, IncludeEveryMethod) {
  const struct {
    std::string_view character, method, text;
  } cases[] = {
      {"→", "compose", "- >"},       {"→", "latex", "\\rightarrow"},    {"→", "digraph", "->"},
      {"→", "ctrl-shift-u", "2192"}, {"→", "keysym", "rightarrow"},     {"→", "keysym", "U2192"},
      {"é", "alt-code", "130"},      {"é", "alt-code", "0233"},         {"→", "alt-code", "26"},
      {"👍", "shortcode", ":+1:"},    {"🇩🇪", "shortcode", ":de:"},       {"❤️", "shortcode", ":heart:"},
      {"€", "compose", "= C"},       {"🫠", "ctrl-shift-u", "1fae0"}, {"é", "latex", "\\'e"},
  };
  for (const auto& one : cases) {
    EXPECT_THAT(waysToType(one.character),
                Contains(testing::AllOf(testing::Field(&WayToType::method, one.method),
                                        testing::Field(&WayToType::text, one.text))))
        << one.character << " " << one.method;
  }
  // The command that occurs in the most sources comes first.
  const std::vector<WayToType> ways = waysToType("→");
  const auto latex = std::find_if(ways.begin(), ways.end(), [](auto& way) { return way.method == "latex"; });
  EXPECT_EQ(latex->text, "\\rightarrow");
  EXPECT_THAT(waysToType("ab"), IsEmpty());
  EXPECT_THAT(waysToType(""), IsEmpty());
}

}  // namespace
}  // namespace glyph
