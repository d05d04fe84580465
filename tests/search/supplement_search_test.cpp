// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include <algorithm>
#include <set>

#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/search/catalog_search.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

const CatalogSearch& everything() {
  static const CatalogSearch search{std::vector<std::string>()};
  return search;
}

std::vector<std::string> hexes(const std::string& query, const std::string& language = "en",
                               std::size_t limit = 100, bool supplement = true) {
  std::vector<std::string> found;
  for (const SearchResult& result : everything().query(query, {limit, {{language}}, {}, supplement}).results)
    found.push_back(everything().entity(result).computed.hex);
  return found;
}

TEST(SupplementSearch, FindsCharactersBeyondTheCatalog) {
  const struct {
    const char* query;
    const char* language;
    const char* first;
  } queries[] = {
      {"magic wand", "en", "1fa84"},
      {"melting face", "en", "1fae0"},
      {"flag germany", "en", "1f1e9,1f1ea"},
      {"flagge deutschland", "de", "1f1e9,1f1ea"},
      {"drapeau allemagne", "fr", "1f1e9,1f1ea"},
      {"flag germny", "en", "1f1e9,1f1ea"},
      {"flag scotland", "en", "1f3f4,e0067,e0062,e0073,e0063,e0074,e007f"},
      {"rainbow flag", "en", "1f3f3,fe0f,200d,1f308"},
      {"thumbs up medium skin tone", "en", "1f44d,1f3fd"},
      {"daumen hoch mittlere hautfarbe", "de", "1f44d,1f3fd"},
      {"kiss woman man light skin tone dark skin tone", "en",
       "1f469,1f3fb,200d,2764,fe0f,200d,1f48b,200d,1f468,1f3ff"},
      {"keycap: 7", "en", "0037,fe0f,20e3"},
      {"🇩🇪", "en", "1f1e9,1f1ea"},
      {"&#150;", "en", "2013"},
      {":de:", "en", "1f1e9,1f1ea"},
      {":+1::skin-tone-3:", "en", "1f44d,1f3fc"},
      {"1F1E9 1F1EA", "en", "1f1e9,1f1ea"},
      {"&#x1F1E9;&#x1F1EA;", "en", "1f1e9,1f1ea"},
      {"bandiera tedesca", "it", "1f1e9,1f1ea"},
      {"Viertelpause", "de", "1d13d"},
      {"U+1FAE0", "en", "1fae0"},
      {"漢", "en", "6f22"},
      {"가", "en", "ac00"},
      {"U+AC00", "en", "ac00"},
      {"hangul syllable ga", "en", "ac00"},
      {"cjk unified ideograph-6f22", "en", "6f22"},
      {"mizu", "en", "6c34"},
      {"cuneiform sign ka times a", "en", "12158"},
  };
  for (const auto& [query, language, first] : queries) {
    const auto found = hexes(query, language);
    EXPECT_EQ(found.empty() ? "nothing" : found.front(), first) << query;
  }
}

// Han characters come after all other results, and the supplement does not change the order of the results of
// the catalog.
TEST(SupplementSearch, ResultsOfTheCatalogComeFirst) {
  const auto water = hexes("water", "en", 10'000);
  const auto isHan = [](const std::string& hex) {
    const auto code = std::stoul(hex, nullptr, 16);
    return hex.find(',') == std::string::npos &&
           ((code >= 0x3400 && code < 0x4DC0) || (code >= 0x4E00 && code <= 0x9FFF) || code >= 0x20000);
  };
  const auto han = std::find_if(water.begin(), water.end(), isHan);
  ASSERT_NE(han, water.end());
  EXPECT_EQ(*han, "6c34");
  EXPECT_TRUE(std::all_of(han, water.end(), isHan));
  std::vector<std::string> withoutOthers;
  const auto ofCatalog = hexes("water", "en", 10'000, false);
  for (const std::string& hex : water) {
    if (std::find(ofCatalog.begin(), ofCatalog.end(), hex) != ofCatalog.end()) withoutOthers.push_back(hex);
  }
  EXPECT_EQ(withoutOthers, ofCatalog);
  EXPECT_EQ(std::vector(water.begin(), water.begin() + 3),
            std::vector(ofCatalog.begin(), ofCatalog.begin() + 3));
}

// There is only one exception: if one of the most wanted signs has the same name as an emoji, the sign comes
// first.
TEST(SupplementSearch, FindsEveryEmojiFirstByItsEnglishName) {
  const std::set<std::string> namesOfSigns{
      "star",       "bookmark",   "dagger",     "hook",         "up arrow",    "right arrow",
      "down arrow", "left arrow", "ON! arrow",  "multiply",     "plus",        "minus",
      "divide",     "infinity",   "check mark", "black circle", "white circle"};
  std::size_t behindSigns = 0;
  for (std::size_t place = 0; place < emojiCount(); ++place) {
    const std::string_view emoji = emojiAt(place).text;
    const std::string name = annotationOf(emoji, "en").name;
    const auto found = everything().query(name, {8, {{"en"}}, {}}).results;
    std::size_t at = 0;
    while (at < found.size() && emojiPlace(everything().entity(found[at]).computed.symbol) != place) ++at;
    behindSigns += at > 0;
    if (namesOfSigns.contains(name))
      EXPECT_LT(at, found.size()) << name;
    else
      EXPECT_EQ(at, 0u) << emoji << " " << name;
  }
  EXPECT_EQ(behindSigns, namesOfSigns.size());
}

TEST(SupplementSearch, ShowsVariantsOfAnEmojiAsOneResult) {
  const auto found = hexes("waving hand", "en", 1000);
  EXPECT_EQ(std::count_if(found.begin(), found.end(), [](auto& hex) { return hex.starts_with("1f44b"); }), 1);
  const SearchResults all = everything().query("waving hand", {1000, {{"en"}}, {}});
  EXPECT_EQ(all.results.size(), all.total);
}

TEST(SupplementSearch, UsesThePreferredToneUnlessTheQueryIsAnEmoji) {
  ASSERT_TRUE(everything().isCurrent());
  ASSERT_TRUE(setPreferredSkinTone(SkinTone::medium));
  const CatalogSearch search{std::vector<std::string>()};
  EXPECT_FALSE(everything().isCurrent());
  const std::pair<const char*, const char*> queries[] = {{"waving hand", "1f44b,1f3fd"},
                                                         {"👋", "1f44b"},
                                                         {"waving hand dark skin tone", "1f44b,1f3ff"},
                                                         {"rightwards arrow", "2192"}};
  for (const auto& [query, hex] : queries)
    EXPECT_EQ(search.entity(search.query(query, {1, {{"en"}}, {}}).results.front()).computed.hex, hex)
        << query;
  setPreferredSkinTone(SkinTone::none);
}

TEST(SupplementSearch, CanBeSwitchedOff) {
  const SearchOptions catalogOnly{1000, {{"en"}}, {}, false};
  for (const char* const query : {"magic wand", "flag germany", "water", "漢", "🇩🇪"}) {
    for (const SearchResult& result : everything().query(query, catalogOnly).results)
      EXPECT_TRUE(everything().isInCatalog(result)) << query;
  }
}

}  // namespace
}  // namespace glyph
