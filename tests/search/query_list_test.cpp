// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <sstream>

#include "tests/search/catalog_search.h"

namespace glyph {
namespace {

using testing::CatalogSearch;

struct ListedQuery {
  std::string query;
  std::string wanted;  // hex codes separated by ","
  std::string kind;
  std::string language;
};

std::vector<ListedQuery> listedQueries() {
  std::vector<ListedQuery> queries;
  std::ifstream file(SEARCH_QUERY_LIST);
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("#")) continue;
    std::istringstream columns(line);
    ListedQuery query;
    std::getline(columns, query.query, '\t');
    std::getline(columns, query.wanted, '\t');
    std::getline(columns, query.kind, '\t');
    std::getline(columns, query.language, '\t');
    queries.push_back(query);
  }
  return queries;
}

// Place of the first wanted character, from 1; 0 where none is found.
std::size_t placeOf(const ListedQuery& query, const std::vector<std::string>& found) {
  for (std::size_t i = 0; i < found.size(); ++i) {
    if (("," + query.wanted + ",").find("," + found[i] + ",") != std::string::npos) return i + 1;
  }
  return 0;
}

// What people look for, written down without regard to the engine. A change of the ranking that loses some of
// it for the sake of something else shows here.
TEST(SearchQueryList, FindsWhatPeopleLookFor) {
  const std::vector<ListedQuery> queries = listedQueries();
  ASSERT_GE(queries.size(), 120u);
  std::size_t first = 0;
  std::size_t firstThree = 0;
  std::size_t anywhere = 0;
  for (const ListedQuery& query : queries) {
    const auto found = CatalogSearch::instance().hexes(query.query, {100, {{query.language}}, {}});
    const std::size_t place = placeOf(query, found);
    first += place == 1;
    firstThree += place >= 1 && place <= 3;
    anywhere += place >= 1;
    if (place == 1) continue;
    std::string best;
    for (std::size_t i = 0; i < std::min<std::size_t>(found.size(), 6); ++i) best += " " + found[i];
    std::printf("'%s' (%s): %s is at place %zu; first are%s\n", query.query.c_str(), query.kind.c_str(),
                query.wanted.c_str(), place, best.c_str());
  }
  const auto percent = [&](std::size_t count) {
    return 100.0 * static_cast<double>(count) / static_cast<double>(queries.size());
  };
  std::printf("%zu queries: first %.1f %%, among the first three %.1f %%, found %.1f %%\n", queries.size(),
              percent(first), percent(firstThree), percent(anywhere));
  EXPECT_GE(percent(first), 96);
  EXPECT_GE(percent(firstThree), 98);
  EXPECT_GE(percent(anywhere), 99);
}

}  // namespace
}  // namespace glyph
