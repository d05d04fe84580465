// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <set>

#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

const SearchOptions english{100, {{"en"}}, {}};

TEST(SearchRanking, BestResultStaysFirstWhileTheUserTypesMoreLetters) {
  for (const auto& [word, hex, least] : {std::tuple{"arrow", "2192", 3},
                                         {"ellipsis", "2026", 4},
                                         {"rocket", "1f680", 5},
                                         {"euro", "20ac", 3},
                                         {"snowflake", "2744", 5}}) {
    const std::string_view text = word;
    for (std::size_t size = static_cast<std::size_t>(least); size <= text.size(); ++size) {
      const auto hexes = CatalogSearch::instance().hexes(text.substr(0, size));
      EXPECT_EQ(hexes.empty() ? "" : hexes.front(), hex) << text.substr(0, size);
    }
  }
}

TEST(SearchRanking, TyposAreCorrectedOnlyIfNothingElseMatches) {
  const struct {
    const char* query;
    const char* first;  // nullptr if nothing is found
    bool approximate;
  } cases[] = {
      {"arow", "2192", true},    // a letter is missing
      {"arrrow", "2192", true},  // an additional letter
      {"orrow", "2192", true},   // a wrong first letter
      {"arrwo", "2192", true},   // two letters are exchanged
      {"rokcet", "1f680", true},    {"black haert", "1f5a4", true},
      {"elipsi", "2026", true},  // mistyped and incomplete
      {"arrow", "2192", false},     {"dagger", "2020", false},
      {"arrrrow", nullptr, false},   // two edits
      {"xqz", nullptr, false},       // too short for corrections
      {"99999999", nullptr, false},  // numbers are not corrected
  };
  for (const auto& test : cases) {
    const SearchResults found = CatalogSearch::instance().search.query(test.query, english);
    const auto hexes = CatalogSearch::instance().hexes(test.query);
    EXPECT_EQ(hexes.empty() ? "" : hexes.front(), test.first ? test.first : "") << test.query;
    EXPECT_EQ(found.approximate, test.approximate) << test.query;
  }
}

TEST(SearchRanking, WordsAreLeftOutIfNoCharacterMatchesAllOfThem) {
  const struct {
    const char* query;
    const char* language;
    const char* first;  // nullptr if nothing is found
  } cases[] = {
      {"face with tears and joy", "en", "1f602"},  // the name has "of" in place of "and"
      {"purple qzwxv snowman", "en", "2603"},      // ignores an unknown word
      {"frozen snwman", "en", "2603"},             // the other word is mistyped
      {"square anchor", "en", "2693"},             // ignores the adjective
      {"ancla cuadrada", "es", "2693"},            // in Spanish, the adjective comes second
      {"pfeil nach rechts", "de", "2192"},
      {"Geburtstagstorte", "de", "1f382"},           // a linking letter joins the parts of the word
      {"qzwxv vxzwq zzqqv snowman", "en", nullptr},  // one matching word of four is not enough
  };
  for (const auto& test : cases) {
    const auto hexes = CatalogSearch::instance().hexes(test.query, {100, {{test.language}}, {}});
    EXPECT_EQ(hexes.empty() ? "" : hexes.front(), test.first ? test.first : "") << test.query;
  }
}

TEST(SearchRanking, EachPartOfTheScoreDecidesTheOrderOfSomeResults) {
  const struct {
    const char* query;
    const char* language;
    const char* first;
  } cases[] = {
      {"circle slash", "en", "2298"},
      {"circle with a slash", "en", "2298"},  // words such as "with" and "a" have little weight
      {"circled number 5", "en", "2464"},     // digits equal their names ("five")
      {"voiceless postalveolar fricative", "en", "0283"},
      {"stimmloser postalveolarer Frikativ", "de", "0283"},  // inflected words have the same synonyms
      {"è maiuscola", "it", "00c8"},                         // the accent matters
      {"í con tilde mayúscula", "es", "00cd"},
      {"u mit zwei Punkten", "de", "00fc"},  // a description of the shape
      {"power set", "en", "1d4ab"},          // not a character whose usage note mentions this one
      {"estreya", "es", "2605"},             // a misspelling of "estrella" that sounds the same
      {"co", "en", "00a9"},                  // not a character with the syllable "Co" in its name
      {"giove", "it", "2643"},
  };
  for (const auto& test : cases) {
    const auto hexes = CatalogSearch::instance().hexes(test.query, {100, {{test.language}}, {}});
    EXPECT_EQ(hexes.empty() ? "" : hexes.front(), test.first) << test.query;
  }
}

TEST(SearchRanking, CharactersThatMatchMuchLessThanTheBestAreLeftOut) {
  const auto& search = CatalogSearch::instance().search;
  EXPECT_LT(search.query("circle slash", english).total, 30u);  // hundreds of characters match one word
  const SearchResults incomplete = search.query("snowman invoice", english);
  EXPECT_TRUE(incomplete.lacksWords && incomplete.approximate);
  const SearchResults corrected = search.query("snoman", english);
  EXPECT_TRUE(!corrected.lacksWords && corrected.approximate);
  EXPECT_FALSE(search.query("the snowman with", english).approximate);
}

TEST(SearchRanking, UnicodeCharactersPrecedeEquallyGoodSFSymbols) {
  for (const char* const query : {"heart", "star", "trash", "pencil", "scissors", "bell", "envelope"}) {
    const auto hexes = CatalogSearch::instance().hexes(query);
    ASSERT_FALSE(hexes.empty()) << query;
    EXPECT_FALSE(hexes.front().size() == 6 && hexes.front().starts_with("10"))
        << query << " " << hexes.front();
  }
}

TEST(SearchRanking, HighlightsTheMatchingPartsOfTheName) {
  const struct {
    const char* query;
    const char* name;  // brackets enclose the expected ranges
  } cases[] = {
      {"rightwards arrow", "[Rightwards] [Arrow]"},
      {"right arr", "[Right]wards [Arr]ow"},
      {"2192", "Rightwards Arrow"},
      {"next", "Rightwards Arrow"},
      {"rightwrads arrow", "[Rightwards] [Arrow]"},
      {"square.and.arrow.up", "[Square].[And].[Arrow].[Up]"},
  };
  for (const auto& test : cases) {
    const SearchResults found = CatalogSearch::instance().search.query(test.query, english);
    ASSERT_FALSE(found.results.empty()) << test.query;
    std::string name = CatalogSearch::instance().entities[found.results.front().index].name();
    for (auto range = found.results.front().nameRanges.rbegin();
         range != found.results.front().nameRanges.rend(); ++range) {
      ASSERT_LT(range->begin, range->end);
      ASSERT_LE(range->end, name.size());
      name.insert(range->end, "]").insert(range->begin, "[");
    }
    EXPECT_EQ(name, test.name) << test.query;
  }
}

TEST(SearchRanking, ReportsEachCharacterOnceAndCountsAllInTheTotal) {
  const CatalogSearch& catalog = CatalogSearch::instance();
  for (const char* const query : {"a", "letter", "arrow", "→ arrow", "group:emoji", "2192", "rarr"}) {
    const SearchResults all = catalog.search.query(query, {100000, {{"en"}}, {}});
    std::set<std::string> distinct;
    for (const SearchResult& result : all.results) {
      const Entity& entity = catalog.entities[result.index];
      EXPECT_TRUE(distinct.insert(entity.computed.hex).second) << query << " " << entity.computed.hex;
      const auto firstOfHex = std::find(catalog.entities.begin(), catalog.entities.end(), entity);
      EXPECT_EQ(firstOfHex - catalog.entities.begin(), static_cast<std::ptrdiff_t>(result.index)) << query;
    }
    EXPECT_EQ(all.results.size(), all.total) << query;
    const SearchResults few = catalog.search.query(query, {3, {{"en"}}, {}});
    EXPECT_EQ(few.total, all.total) << query;
    ASSERT_EQ(few.results.size(), std::min<std::size_t>(3, all.total)) << query;
    for (std::size_t i = 0; i < few.results.size(); ++i)
      EXPECT_EQ(few.results[i].index, all.results[i].index);
  }
}

// The name of a character, as a query, finds this character. Only characters with the same name, or with
// another text that equals the name, may come before this character.
TEST(SearchRanking, EveryNameFindsItsCharacter) {
  const CatalogSearch& catalog = CatalogSearch::instance();
  const auto loose = [](std::string name) {
    std::erase_if(name, [](char c) { return c == ' ' || c == '-' || c == '.'; });
    return lowercased(name);
  };
  std::set<std::string> done;
  std::size_t notFirst = 0;
  for (const Entity& entity : catalog.entities) {
    if (!done.insert(entity.computed.hex).second) continue;
    const std::string name = entity.name();
    const SearchResults found = catalog.search.query(name, {100, {{"en"}}, {}});
    bool reached = false;
    for (const SearchResult& result : found.results) {
      const Entity& other = catalog.entities[result.index];
      reached = other == entity;
      if (reached) break;
      const bool calledSo = result.field != SearchField::name || loose(other.name()) == loose(name);
      // An SF Symbol may come after Unicode characters with other names: "Bell" comes after "Bell Symbol".
      EXPECT_TRUE(calledSo || entity.computed.isSFSymbol.value_or(false))
          << entity.computed.hex << " " << name << ": " << other.name();
    }
    EXPECT_TRUE(reached) << entity.computed.hex << " " << name;
    notFirst += reached && !(catalog.entities[found.results.front().index] == entity);
  }
  EXPECT_LT(notFirst, done.size() / 50);
}

}  // namespace
}  // namespace glyph
