// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <map>

#include "glyphorium/characters/emoji.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/search/catalog_search.h"
#include "glyphorium/text/unicode_text.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;
using testing::listedQueries;
using testing::ListedQuery;

// Returns the position of the first wanted character in the results, starting at 1. Returns 0 if there is no
// wanted character in the results.
std::size_t placeOf(const ListedQuery& query, const std::vector<std::string>& found) {
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (("," + query.wanted + ",").find("," + found[i] + ",") != std::string::npos) return i + 1;
  }
  return 0;
}

// The queries whose first result is not a wanted character, with the position of the first wanted character,
// or 0 if none is found. If a change makes a query find a wanted character first, remove the query from this
// list. Add a query only if your change improves more queries than it makes worse.
const std::map<std::string, std::size_t> knownMisses{
    {"&NotEqualTilde;", 0},
    {":+1::skin-tone-3:", 0},
    {"Compose C C C P", 0},
    {"FF FE AC 20", 0},
    {"Mutter mit zwei Töchtern", 12},
    {"Schneeman", 2},
    {"X-SAMPA @", 0},
    {"\\textesh", 0},
    {"\\textltailn", 0},
    {"\\usepackage{pifont} \\ding{51}", 0},
    {"aproximately equal", 2},
    {"bandiera sanmarino", 0},
    {"beta code a)/", 0},
    {"circle with a line through", 2},
    {"diameter of hole drawing", 0},
    {"dinausore", 0},
    {"doesn't belong to the set", 2},
    {"dos mamas con un hijo", 8},
    {"e aperta alfabeto fonetico", 2},
    {"erre simple de pero fonética", 0},
    {"familia con dos mamás", 8},
    {"flag of ivory cost", 2},
    {"gear", 3},
    {"gebetsstätte der muslime mit minarett", 2},
    {"greek a with rough breathing", 4},
    {"half moon", 2},
    {"half moon getting bigger", 0},
    {"infermiera", 3},
    {"innamorati col cuore", 3},
    {"kanji for water", 0},
    {"killer whale", 4},
    {"lieu de culte catholique église", 0},
    {"maestra de escuela", 0},
    {"maestra di scuola", 2},
    {"mamma papà figlio e figlia", 14},
    {"microfarads", 0},
    {"micrograms", 0},
    {"moon nearly full getting smaller", 0},
    {"new saudi money sign", 3},
    {"quadratmeter zeichen", 2},
    {"quotesinglbase", 0},
    {"skull", 2},
    {"sound at the end of sing", 0},
    {"stella luccicante", 2},
    {"suono gli ipa", 15},
    {"trash", 2},
    {"two dads and a little girl", 3},
    {"two dads with a son", 6},
    {"vim digraph =e", 0},
    {"wifi", 2},
    {"woman who repairs cars", 0},
    {"x-sampa {", 0},
    {"zeta castellana afi", 0},
    {"étoiles", 2},
};

// Returns the hex codes of the results of a search in the catalog and the supplement. For an emoji with a
// skin tone, returns the hex code of the emoji without the tone.
std::vector<std::string> hexesOfEverything(const ListedQuery& query) {
  static const glyph::CatalogSearch search{std::vector<std::string>()};
  std::vector<std::string> hexes;
  for (const SearchResult& result : search.query(query.query, {100, {{query.language}}, {}}).results) {
    std::string& hex = hexes.emplace_back();
    for (const char32_t point :
         codePoints(withSkinTone(search.entity(result).computed.symbol, SkinTone::none)))
      if (point != U'\uFE0F' || query.wanted == "fe0f")
        hex += (hex.empty() ? "" : "+") + CodeFormats().getHex(point);
  }
  return hexes;
}

// The queries in the list are those that people type. They were not chosen to give good results.
TEST(SearchQueryList, EachQueryFindsItsCharacterFirstExceptKnownMisses) {
  const std::vector<ListedQuery> queries = listedQueries();
  ASSERT_GE(queries.size(), 1400u);
  std::size_t misses = 0;
  for (const ListedQuery& query : queries) {
    const auto everything = hexesOfEverything(query);
    const auto found = query.kind == "everything"
                           ? everything
                           : CatalogSearch::instance().hexes(query.query, {100, {{query.language}}, {}});
    const auto miss = knownMisses.find(query.query);
    misses += miss != knownMisses.end();
    std::string best;
    for (std::size_t i = 0; i < std::min<std::size_t>(found.size(), 6); ++i) best += " " + found[i];
    EXPECT_EQ(placeOf(query, found), miss == knownMisses.end() ? 1 : miss->second)
        << "'" << query.query << "' (" << query.language << ", " << query.kind << ") means " << query.wanted
        << "; found are" << best;
    const std::size_t place = placeOf(query, everything);
    EXPECT_TRUE(miss != knownMisses.end() || (place != 0 && place <= placeOf(query, found)))
        << "'" << query.query << "' (" << query.language << ") in a search of everything";
  }
  EXPECT_EQ(misses, knownMisses.size());
}

}  // namespace
}  // namespace glyph
