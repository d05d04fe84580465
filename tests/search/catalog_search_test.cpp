// SPDX-License-Identifier: MIT
#include "glyphorium/search/catalog_search.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <optional>
#include <utility>

#include "glyphorium/catalog/custom_entities.h"
#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

// These tests leave out the supplement, which has its own tests.
const SearchOptions english{20, {{"en"}}, {}, false};

std::vector<std::string> hexes(const CatalogSearch& search, const std::string& query,
                               const SearchOptions& options = english) {
  std::vector<std::string> found;
  for (const SearchResult& result : search.query(query, options).results)
    found.push_back(search.entity(result).computed.hex);
  return found;
}

// The entities of the catalog and of added characters as one list, and a Search that is built from this list.
// A CatalogSearch must have the same results as this Search. Building this Search takes hundreds of times as
// long as making a CatalogSearch.
struct WholeList {
  explicit WholeList(const std::vector<std::string>& codes) : entities(customEntities(codes)) {
    const std::vector<Entity>& catalog = testing::CatalogSearch::instance().entities;
    entities.insert(entities.end(), catalog.begin(), catalog.end());
    search.emplace(entities);
  }
  std::vector<Entity> entities;
  std::optional<Search> search;
};

TEST(CatalogSearch, RanksResultsLikeASingleSearchOverBothLists) {
  const std::vector<std::string> codes{"2192", "05d0", "fffd", "0041,030a", "1f600", "2e3b"};
  const CatalogSearch search(codes);
  const WholeList whole(codes);
  for (const std::string query : {"arrow",
                                  "rightwards arrow",
                                  "→",
                                  "2192",
                                  "U+FFFD",
                                  "replacement character",
                                  "hebrew letter alef",
                                  "alef",
                                  "grinning",
                                  "grinnign face",
                                  "em dash",
                                  "three em dash",
                                  "group:custom",
                                  "face group:custom",
                                  "replacment",
                                  "face",
                                  "smile",
                                  "letter",
                                  "qqqqqq",
                                  ""}) {
    std::vector<std::string> expected;
    const SearchResults found = whole.search->query(query, english);
    for (const SearchResult& result : found.results)
      expected.push_back(whole.entities[result.index].computed.hex);
    EXPECT_EQ(hexes(search, query), expected) << query;
    EXPECT_EQ(search.query(query, english).total, found.total) << query;
    EXPECT_EQ(search.query(query, english).approximate, found.approximate) << query;
  }
}

// Returns the results of a query, ordered by cost and then by hex code. If the limit cut off results, leaves
// out the results with the highest cost, because the list may have only some of them.
template <class EntityOf>
std::vector<std::pair<std::uint32_t, std::string>> byCost(const SearchResults& found, EntityOf entityOf) {
  std::vector<std::pair<std::uint32_t, std::string>> results;
  for (const SearchResult& result : found.results) {
    if (found.results.size() == found.total || result.cost < found.results.back().cost)
      results.emplace_back(result.cost, entityOf(result).computed.hex);
  }
  std::sort(results.begin(), results.end());
  return results;
}

TEST(CatalogSearch, FindsForAllListedQueriesWhatASingleSearchFinds) {
  const std::vector<std::string> codes{"2192", "27f6", "05d0", "1f600", "20ac",
                                       "2764", "0041", "00bd", "21e8"};
  const CatalogSearch search(codes);
  const WholeList whole(codes);
  for (const testing::ListedQuery& query : testing::listedQueries()) {
    const SearchOptions options{60, {{query.language}}, {}, false};
    const SearchResults found = search.query(query.query, options);
    const SearchResults expected = whole.search->query(query.query, options);
    EXPECT_EQ(byCost(found, [&](auto& result) { return search.entity(result); }),
              byCost(expected, [&](auto& result) { return whole.entities[result.index]; }))
        << query.query;
    EXPECT_EQ(std::pair(found.total, found.approximate), std::pair(expected.total, expected.approximate))
        << query.query;
  }
}

TEST(CatalogSearch, PrefersEntitiesOfTheUserAndNoticesChanges) {
  const CatalogSearch search({"2192", "0041,030a"});
  const SearchResult arrow = search.query("→", english).results.front();
  EXPECT_FALSE(search.isInCatalog(arrow));
  EXPECT_EQ(search.entity(arrow).computed.group, "custom");
  EXPECT_EQ(search.entityOfHex("2192")->computed.group, "custom");
  EXPECT_EQ(search.entityOfHex("21d2")->name(), "Rightwards Double Arrow");
  EXPECT_EQ(search.entityOfHex("1f1e9,1f1ea")->name(), "Flag: Germany");
  for (const char* const unknown : {"", "21D2", "021d2", "0378", "zzzz"})
    EXPECT_FALSE(search.entityOfHex(unknown)) << unknown;
  EXPECT_FALSE(search.isCurrent());  // the settings of the test contain no added characters
}

TEST(CatalogSearch, MarksOnlyExactMatchesAsExact) {
  const CatalogSearch search{std::vector<std::string>()};
  const std::pair<const char*, bool> queries[] = {
      {"→", true},        {"U+2192", true},  {"rightwards arrow", true},
      {"snowman", true},  {"&rarr;", true},  {"arro", false},
      {"konsole", false}, {"snoman", false}, {"group:arrows", false}};
  for (const auto& [query, exact] : queries) {
    const auto found = search.query(query, english).results;
    EXPECT_EQ(!found.empty() && found.front().exact, exact) << query;
  }
}

}  // namespace
}  // namespace glyph
