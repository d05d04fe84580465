// SPDX-License-Identifier: MIT
#include "glyphorium/c/search.h"

#include <variant>

#include "glyphorium/c/handles.h"
#include "glyphorium/search/catalog_search.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/nearest_texts.h"

using namespace glyph::c;

namespace {

struct ListSearch {
  std::vector<glyph::Entity> entities;
  glyph::Search search;
};

// The numbers of the C interface must never change. glyphorium_results_field() converts the C++ enumeration
// without a table, so both must have the same numbers.
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::character) ==
              GLYPHORIUM_FIELD_CHARACTER);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::code) == GLYPHORIUM_FIELD_CODE);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::name) == GLYPHORIUM_FIELD_NAME);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::alias) == GLYPHORIUM_FIELD_ALIAS);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::htmlName) ==
              GLYPHORIUM_FIELD_HTML_NAME);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::searchTerm) ==
              GLYPHORIUM_FIELD_SEARCH_TERM);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::annotation) ==
              GLYPHORIUM_FIELD_ANNOTATION);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::group) == GLYPHORIUM_FIELD_GROUP);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::note) == GLYPHORIUM_FIELD_NOTE);
static_assert(static_cast<glyphorium_search_field>(glyph::SearchField::notation) ==
              GLYPHORIUM_FIELD_NOTATION);

}  // namespace

struct glyphorium_search {
  std::variant<glyph::CatalogSearch, ListSearch> kind;
};

struct glyphorium_results {
  glyph::SearchResults answer;
  std::vector<glyph::Entity> entities;  // the entity of each result
};

glyphorium_search* glyphorium_search_all(void) {
  return guarded([] { return new glyphorium_search{glyph::CatalogSearch()}; });
}

glyphorium_search* glyphorium_search_over(const glyphorium_entities* entities) {
  if (!entities) return InvalidArgument();
  return guarded([=] {
    return new glyphorium_search{ListSearch{entities->list, glyph::Search(entities->list)}};
  });
}

bool glyphorium_search_is_current(const glyphorium_search* search) {
  if (!search) return InvalidArgument();
  return guarded([=] {
    const auto* const all = std::get_if<glyph::CatalogSearch>(&search->kind);
    return !all || all->isCurrent();
  });
}

void glyphorium_search_free(glyphorium_search* search) {
  delete search;
}

glyphorium_results* glyphorium_search_query(const glyphorium_search* search, const char* text,
                                            const glyphorium_search_options* options) {
  if (!search || !text) return InvalidArgument();
  return guarded([=]() -> glyphorium_results* {
    glyph::SearchOptions wanted;
    if (options) {
      const auto given = structureOf(options, sizeof(glyphorium_search_options));
      if (!given) return InvalidArgument();
      auto languages = textsOf(given->languages, given->language_count);
      auto groups = textsOf(given->groups, given->group_count);
      if (!languages || !groups) return InvalidArgument();
      wanted.limit = given->limit;
      if (given->languages) wanted.languages = std::move(languages);
      wanted.groups = *std::move(groups);
    }
    auto results = std::make_unique<glyphorium_results>();
    if (const auto* const all = std::get_if<glyph::CatalogSearch>(&search->kind)) {
      results->answer = all->query(text, wanted);
      for (const auto& result : results->answer.results) results->entities.push_back(all->entity(result));
    } else {
      const ListSearch& list = std::get<ListSearch>(search->kind);
      results->answer = list.search.query(text, wanted);
      for (const auto& result : results->answer.results)
        results->entities.push_back(list.entities[result.index]);
    }
    return results.release();
  });
}

void glyphorium_results_free(glyphorium_results* results) {
  delete results;
}

namespace {

const glyph::SearchResult* resultAt(const glyphorium_results* results, size_t index) {
  if (!results || index >= results->entities.size()) return InvalidArgument();
  return &results->answer.results[index];
}

}  // namespace

size_t glyphorium_results_count(const glyphorium_results* results) {
  if (!results) return InvalidArgument();
  return results->entities.size();
}

size_t glyphorium_results_total(const glyphorium_results* results) {
  if (!results) return InvalidArgument();
  return results->answer.total;
}

bool glyphorium_results_approximate(const glyphorium_results* results) {
  if (!results) return InvalidArgument();
  return results->answer.approximate;
}

const glyphorium_entity* glyphorium_results_entity(const glyphorium_results* results, size_t index) {
  return resultAt(results, index) ? handleOf(results->entities[index]) : nullptr;
}

size_t glyphorium_results_position(const glyphorium_results* results, size_t index) {
  const auto* const result = resultAt(results, index);
  return result ? result->index : 0;
}

glyphorium_search_field glyphorium_results_field(const glyphorium_results* results, size_t index) {
  const auto* const result = resultAt(results, index);
  return result ? static_cast<glyphorium_search_field>(result->field) : glyphorium_search_field{};
}

bool glyphorium_results_exact(const glyphorium_results* results, size_t index) {
  const auto* const result = resultAt(results, index);
  return result && result->exact;
}

uint32_t glyphorium_results_cost(const glyphorium_results* results, size_t index) {
  const auto* const result = resultAt(results, index);
  return result ? result->cost : 0;
}

size_t glyphorium_results_range_count(const glyphorium_results* results, size_t index) {
  const auto* const result = resultAt(results, index);
  return result ? result->nameRanges.size() : 0;
}

bool glyphorium_results_range(const glyphorium_results* results, size_t index, size_t range, size_t* begin,
                              size_t* end) {
  const auto* const result = resultAt(results, index);
  if (!result || range >= result->nameRanges.size() || !begin || !end) return InvalidArgument();
  *begin = result->nameRanges[range].begin;
  *end = result->nameRanges[range].end;
  return true;
}

glyphorium_texts* glyphorium_nearest_texts(const char* text, const char* const* candidates, size_t count,
                                           size_t limit) {
  if (!text) return InvalidArgument();
  return guarded([=]() -> glyphorium_texts* {
    const auto texts = textsOf(candidates, count);
    if (!texts) return InvalidArgument();
    return handleOf(glyph::nearestTexts(text, *texts, limit));
  });
}
