// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <sstream>

#include "glyphorium/data/search_facts.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

struct FormCase {
  const char* query;
  std::vector<std::string> first;  // hex codes of the first results
  SearchField field;               // the field of the first result
};

TEST(SearchQueryForms, EveryFormOfACharacterFindsIt) {
  const FormCase cases[] = {
      // code points
      {"U+2192", {"2192"}, SearchField::code},
      {" u+2192 ", {"2192"}, SearchField::code},
      {"U2192", {"2192"}, SearchField::code},
      {"0x2192", {"2192"}, SearchField::code},
      {"2192", {"2192"}, SearchField::code},
      {"8594", {"2192"}, SearchField::code},
      {"U+41", {"0041"}, SearchField::code},
      {"\\u2192", {"2192"}, SearchField::code},
      {"\\u{1F600}", {"1f600"}, SearchField::code},
      {"\\x{20ac}", {"20ac"}, SearchField::code},
      {"\\U0001F600", {"1f600"}, SearchField::code},
      {"\\2192", {"2192"}, SearchField::code},
      {"\\uD83D\\uDE00", {"1f600"}, SearchField::code},
      {"U+2192, U+2190", {"2192", "2190"}, SearchField::code},
      {"2665", {"2665"}, SearchField::code},          // hexadecimal, not decimal
      {"0169", {"0169", "00a9"}, SearchField::code},  // hexadecimal first, then decimal
      {"169", {"00a9", "0169"}, SearchField::code},
      {"U-0001F600", {"1f600"}, SearchField::code},
      {"U+ 2713", {"2713"}, SearchField::code},
      {"<U+200B>", {"200b"}, SearchField::code},
      {"uni2192", {"2192"}, SearchField::code},
      {"\\N{U+2014}", {"2014"}, SearchField::code},
      {"=UNICHAR(955)", {"03bb"}, SearchField::code},
      {"chr(0x3bb)", {"03bb"}, SearchField::code},
      {"#8594;", {"2192"}, SearchField::code},
      {"%E2%82%ac%20", {"20ac", "0020"}, SearchField::code},
      {"\\xE2\\x82\\xAC \\xa9",
       {"20ac", "00a9"},
       SearchField::code},  // the byte A9 is not part of a UTF-8 sequence
      {"e2 82 ac", {"20ac"}, SearchField::code},
      {"D83D DE02", {"1f602"}, SearchField::code},
      {"2192 2190", {"2192", "2190"}, SearchField::code},
      {"U+2192 RIGHTWARDS ARROW", {"2192"}, SearchField::code},
      {"\\N{SNOWMAN}", {"2603"}, SearchField::name},
      // references
      {"&rarr;", {"2192"}, SearchField::htmlName},
      {"&rarr", {"2192"}, SearchField::htmlName},
      {"&rarr;&larr;", {"2192", "2190"}, SearchField::htmlName},
      {"&#8594;", {"2192"}, SearchField::code},
      {"&#x2192", {"2192"}, SearchField::code},
      {"&rArr;", {"21d2"}, SearchField::htmlName},  // upper and lower case differ in HTML names
      {"&Rarr;", {"21a0"}, SearchField::htmlName},
      {"rightarrow", {"2192"}, SearchField::htmlName},
      {"RightArrow", {"2192"}, SearchField::htmlName},
      {"rpar", {"0029"}, SearchField::htmlName},  // the enrichment table has another HTML name
      // the characters themselves
      {"→", {"2192"}, SearchField::character},
      {"→←", {"2192", "2190"}, SearchField::character},
      {"a", {"0061", "0041"}, SearchField::character},
      {" ", {"0020"}, SearchField::character},
      {"\u00a0", {"00a0"}, SearchField::character},
      {"é", {"00e9"}, SearchField::character},
      {"e\u0301", {"00e9", "0065", "0301"}, SearchField::character},
      {"❤\uFE0F", {"2764"}, SearchField::character},
      {"👍🏽", {"1f44d", "1f3fd"}, SearchField::character},
      {"👨\u200D👩\u200D👧", {"1f468", "1f469", "1f467"}, SearchField::character},
      {"\u200D", {"200d"}, SearchField::character},
      {"жук", {"0436", "0443", "043a"}, SearchField::character},
      // ASCII signs that people type instead of a character, such as "->"; the results for the signs
      // themselves come later
      {"->", {"2192", "002d", "003e"}, SearchField::notation},
      {"(C)", {"00a9"}, SearchField::notation},
      {"1/2", {"00bd"}, SearchField::notation},
      {"!=", {"2260", "0021", "003d"}, SearchField::notation},
      {"...", {"2026"}, SearchField::notation},
      // notations for characters in other programs, such as LaTeX and Alt codes
      {"\\neq", {"2260"}, SearchField::notation},
      {"\\cdot", {"22c5", "00b7"}, SearchField::notation},  // more sources give the first one
      {"\\AA", {"00c5"}, SearchField::notation},            // a LaTeX command, not the code AA
      {"$\\Rightarrow$", {"21d2"}, SearchField::notation},
      {"\\'e", {"00e9"}, SearchField::notation},
      {"\\c c", {"00e7"}, SearchField::notation},
      {"\\'i", {"00ed"}, SearchField::notation},  // the LaTeX command has a dotless i
      {"\\not\\in", {"2209"}, SearchField::notation},
      {"\\mathbb{R}", {"211d"}, SearchField::notation},
      {"\\righta", {"2192"}, SearchField::notation},  // a prefix of a command
      {":tada:", {"1f389"}, SearchField::notation},
      {":+1:", {"1f44d"}, SearchField::notation},
      {":tad", {"1f389"}, SearchField::notation},
      {":-)", {"1f642"}, SearchField::notation},
      {"| - >", {"21a6", "007c", "002d"}, SearchField::notation},
      {"alt 0176", {"00b0"}, SearchField::notation},
      {"Alt+3", {"2665"}, SearchField::notation},
      {"Alt + 0 1 5 3", {"2122"}, SearchField::notation},
      {"2640 Alt+X", {"2640"}, SearchField::notation},
      {"[Alt] 0133", {"2026"}, SearchField::notation},
      {"<Multi_key> <o> <c>", {"00a9"}, SearchField::notation},
      {"compose+/+o", {"00f8"}, SearchField::notation},
      {"<C-k>a*", {"03b1"}, SearchField::notation},
      {"&#150;", {"2013"}, SearchField::notation},
      {"00A7;SECTION SIGN;Po;0;ON;;;;;N;;;;;", {"00a7"}, SearchField::code},
      {"\\mathbf{\\alpha}", {"1d6c2"}, SearchField::notation},
      {"Compose , c", {"00e7"}, SearchField::notation},
      {"â€™", {"2019"}, SearchField::notation},
      {"alt-228", {"03a3", "00f5"}, SearchField::notation},  // a different one in each of two code pages
      {"Compose < 3", {"2665"}, SearchField::notation},
      {"^K a:", {"00e4"}, SearchField::notation},
      {"U 2014", {"2014"}, SearchField::code},
      {"0xE2 0x80 0x94", {"2014"}, SearchField::code},
      {"content: \"\\201C\";", {"201c"}, SearchField::code},
      // names in several spellings
      {"square.and.arrow.up", {"100202"}, SearchField::name},
      {"NO-BREAK_space", {"00a0"}, SearchField::name},
      {"arrow rightwards", {"2192"}, SearchField::name},
      {"zerowidthjoiner", {"200d"}, SearchField::name},
      {"thumbsup", {"1f44d"}, SearchField::annotation},
      {"lambda", {"03bb"}, SearchField::searchTerm},
      {"latin capital letter gha", {"01a2"}, SearchField::alias},  // the alias corrects an error in the name
      {"sqrt", {"221a"}, SearchField::searchTerm},
      // a word that is also a code
      {"face", {"263a"}, SearchField::searchTerm},
  };
  for (const FormCase& form : cases) {
    const SearchResults found = CatalogSearch::instance().search.query(form.query, {100, {{"en"}}, {}});
    std::vector<std::string> hexes = CatalogSearch::instance().hexes(form.query);
    hexes.resize(std::min(hexes.size(), form.first.size()));
    EXPECT_EQ(hexes, form.first) << form.query;
    if (!found.results.empty()) {
      EXPECT_EQ(found.results.front().field, form.field) << form.query;
    }
  }
}

// The characters with which a code is written, such as "&", "#" and "+", must not be results.
TEST(SearchQueryForms, CodeFindsOnlyItsCharacter) {
  for (const char* const code : {"U+2192", "\\u2192", "\\u{2192}", "&#8594;", "&#x2192;"})
    EXPECT_EQ(CatalogSearch::instance().hexes(code), std::vector<std::string>{"2192"}) << code;
  EXPECT_EQ(CatalogSearch::instance().hexes("&#"),
            (std::vector<std::string>{"0026", "0023"}));  // not a complete code
}

TEST(SearchQueryForms, EveryHtmlReferenceFindsItsCharacterFirst) {
  const CatalogSearch& catalog = CatalogSearch::instance();
  std::size_t names = 0;
  for (std::size_t list = 0; list < searchFactCount; ++list) {
    const SearchFacts& facts = searchFactList[list];
    if (facts.kind != SearchFactKind::htmlName) continue;
    for (std::size_t i = 0; i < facts.size(); ++i) {
      const auto index = catalog.search.indexOf(facts[i].codePoint);
      if (!index) continue;  // the character is not in the catalog
      std::istringstream texts{std::string(facts[i].texts)};
      for (std::string name; std::getline(texts, name); ++names) {
        const auto found = catalog.search.query("&" + name + ";", {1, {{"en"}}, {}}).results;
        EXPECT_EQ(found.empty() ? SIZE_MAX : found.front().index, *index) << name;
        EXPECT_EQ(catalog.search.indexOfHtmlName(name), index) << name;
      }
    }
  }
  EXPECT_GT(names, 2000u);
}

TEST(SearchQueryForms, WordsOfTheUsersLanguagesFindCharacters) {
  const struct {
    const char* query;
    const char* language;
    const char* wanted;
  } cases[] = {
      {"fleche", "fr", "2192"},   {"FLÈCHE", "fr", "2192"},   {"arrọw", "en", "2192"},
      {"haekchen", "de", "2713"}, {"pfeile", "de", "2192"},   {"groesser gleich", "de", "2265"},
      {"pound", "de", "00a3"},    {"pound", "pt-BR", "00a3"}, {"herz", "de-AT", "2764"},
      {"corazón", "en", "2764"},  // no English text has this word
  };
  for (const auto& test : cases) {
    const auto hexes = CatalogSearch::instance().hexes(test.query, {100, {{test.language}}, {}});
    EXPECT_FALSE(hexes.empty()) << test.query;
    if (!hexes.empty()) {
      EXPECT_EQ(hexes.front(), test.wanted) << test.query << " " << test.language;
    }
  }
}

TEST(SearchQueryForms, GroupRestrictsTheResults) {
  const CatalogSearch& catalog = CatalogSearch::instance();
  const auto inGroup = [&](std::string_view group) {
    return static_cast<std::size_t>(
        std::count_if(catalog.entities.begin(), catalog.entities.end(),
                      [&](const Entity& e) { return e.computed.group == group; }));
  };
  const struct {
    const char* query;
    std::vector<std::string> groups;  // SearchOptions::groups
    std::size_t total;
    const char* first;
  } cases[] = {
      {"group:arrows", {}, inGroup("arrows"), "2190"},  // all entities of the group, in the order of the list
      {"group:Currency", {}, inGroup("currency symbols"), "20a0"},
      {"group:\"math operators\"", {}, inGroup("math operators"), "2200"},
      {"group:emoji cat", {}, catalog.search.query("cat", {0, {{"en"}}, {"emoji"}}).total, "1f408"},
      {"cat group:emoji", {}, catalog.search.query("cat", {0, {{"en"}}, {"emoji"}}).total, "1f408"},
      {"euro", {"currency symbols"}, 2, "20ac"},
      {"→", {"emoji"}, 0, nullptr},
      {"group:nonsense arrow", {}, 0, nullptr},
  };
  for (const auto& test : cases) {
    const SearchResults found = catalog.search.query(test.query, {100, {{"en"}}, test.groups});
    EXPECT_EQ(found.total, test.total) << test.query;
    if (test.first && !found.results.empty()) {
      EXPECT_EQ(catalog.entities[found.results.front().index].computed.hex, test.first) << test.query;
    }
  }
}

}  // namespace
}  // namespace glyph
