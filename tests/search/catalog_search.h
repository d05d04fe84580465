// SPDX-License-Identifier: MIT
#pragma once

#include <algorithm>
#include <charconv>
#include <fstream>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/unicode_text.h"
#include "tests/support/recorded_diagnostics.h"

namespace glyph::testing {

/// The configured catalog and a Search over its entities. Both are created once, on first use.
struct CatalogSearch {
  std::vector<Entity> entities;
  Search search;

  static const CatalogSearch& instance() {
    static const CatalogSearch made;
    return made;
  }

  /// Returns the hex codes of the results. The best result is first.
  std::vector<std::string> hexes(std::string_view query,
                                 const SearchOptions& options = {100, {{"en"}}, {}}) const {
    std::vector<std::string> result;
    for (const SearchResult& found : search.query(query, options).results) {
      result.push_back(entities[found.index].computed.hex);
    }
    return result;
  }

 private:
  CatalogSearch() : entities(catalogEntities()), search(entities) {}

  static std::vector<Entity> catalogEntities() {
    const RecordedDiagnostics quiet;
    Glyphorium catalog;
    catalog.configure();
    return catalog.buildInEntities();
  }
};

/// A line of queries.tsv.
struct ListedQuery {
  std::string query;
  std::string wanted;  // hex codes separated by ","
  std::string kind;
  std::string language;
};

/// Returns the queries of queries.tsv.
inline std::vector<ListedQuery> listedQueries() {
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

}  // namespace glyph::testing
