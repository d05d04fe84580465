// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>
#include <malloc.h>

#include <atomic>
#include <thread>

#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

TEST(SearchRobustness, HostileTextsCauseNoErrors) {
  std::string manyWords;
  for (int i = 0; i < 20000; ++i) manyWords += "arrow rightwrads emdash ";
  const std::string longCluster = "e" + [] {
    std::string marks;
    for (int i = 0; i < 100000; ++i) marks += "\u0301";
    return marks;
  }();
  const std::string texts[] = {
      std::string(1, '\0'),
      std::string("arrow\0arrow", 11),
      "\xFF\xFE",
      "\xE2\x86",      // a truncated sequence
      "\xED\xA0\x80",  // a surrogate
      "arrow\xC3",     // a truncated sequence after a word
      std::string(1 << 20, 'a'),
      std::string(1 << 20, ' '),
      std::string(1 << 20, '&'),
      std::string(1 << 20, '\\'),
      "&#99999999999999999999;",
      "U+FFFFFFFF",
      "\\u{}",
      "&;",
      "group:",
      "group:\"",
      "group:\"\"",
      "group:group:group:",
      manyWords,
      longCluster,
      "of the sign of the",
  };
  for (const std::string& text : texts) {
    const SearchResults found = CatalogSearch::instance().search.query(text);
    EXPECT_LE(found.results.size(), 100u) << text.substr(0, 30);
    EXPECT_LE(found.results.size(), found.total) << text.substr(0, 30);
  }
  EXPECT_EQ(CatalogSearch::instance().search.query("").total, 0u);
  EXPECT_EQ(CatalogSearch::instance().search.query("arrow\xC3", {1, {{"en"}}, {}}).total,
            CatalogSearch::instance().search.query("arrow", {1, {{"en"}}, {}}).total);
}

TEST(SearchRobustness, UnusualListsCanBeSearched) {
  EXPECT_EQ(Search({}).query("arrow").total, 0u);
  std::vector<Entity> entities(3);
  entities[0].computed.hex = "0041,030a";  // two code points
  entities[0].computed.fallbackName = "Two Of Them";
  entities[1].computed.hex = "2192";  // has annotations in the library, but no name and no group here
  entities[2].computed.hex = "";
  const Search search(entities);
  EXPECT_EQ(search.query("two them", {10, {{"en"}}, {}}).total, 1u);
  EXPECT_EQ(search.query("right-pointing arrow", {10, {{"en"}}, {}}).total, 1u);
  EXPECT_EQ(search.query("→").total, 1u);
}

TEST(SearchRobustness, ThreadsShareOneObject) {
  const Search& search = CatalogSearch::instance().search;
  const char* const queries[] = {"arrow",           "a",     "elipsis", "greek small letter", "→",
                                 "group:emoji cat", "emdash"};
  std::vector<std::size_t> totals;
  for (const char* const query : queries) totals.push_back(search.query(query, {5, {{"en"}}, {}}).total);
  std::atomic<int> wrong = 0;
  std::vector<std::thread> threads;
  for (int t = 0; t < 4; ++t) {
    threads.emplace_back([&, copy = search] {
      for (int round = 0; round < 20; ++round) {
        for (std::size_t i = 0; i < std::size(queries); ++i)
          wrong += copy.query(queries[i], {5, {{"en"}}, {}}).total != totals[i];
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(wrong, 0);
}

TEST(SearchRobustness, TenThousandQueriesDoNotIncreaseMemoryUse) {
  const CatalogSearch& catalog = CatalogSearch::instance();
  const auto round = [&](std::size_t count) {
    for (std::size_t i = 0; i < count; ++i) {
      const std::string name = catalog.entities[i * 7919 % catalog.entities.size()].name();
      catalog.search.query(name.substr(0, 1 + i % 12));
      // No character matches this query, so the search tries other spellings too.
      if (i % 50 == 0) catalog.search.query(name + "x");
    }
  };
  round(500);
  const std::size_t before = mallinfo2().uordblks;
  round(10000);
  const std::size_t after = mallinfo2().uordblks;
  EXPECT_LT(after, before + (1 << 20));
}

}  // namespace
}  // namespace glyph
