// SPDX-License-Identifier: MIT
#include "glyphorium/search/catalog_search.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "glyphorium/catalog/custom_entities.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/text/ascii.h"

namespace glyph {
namespace {

std::optional<std::size_t> placeInCatalog(std::string_view hex) {
  const auto codePoint = ascii::number(hex, 16);
  return codePoint ? Search::ofCatalog().indexOf(*codePoint) : std::nullopt;
}

}  // namespace

CatalogSearch::CatalogSearch() : CatalogSearch(glyphorium().customAddedEntityUnicodes()) {}

CatalogSearch::CatalogSearch(std::vector<std::string> addedCodes)
    : codes_(std::move(addedCodes)), added_(customEntities(codes_)) {
  if (!added_.empty()) addedSearch_.emplace(added_);
}

SearchResults CatalogSearch::query(std::string_view text, const SearchOptions& options) const {
  if (!addedSearch_) return Search::ofCatalog().query(text, options);
  SearchOptions all = options;
  all.limit = added_.size();
  SearchResults added = addedSearch_->query(text, all);
  // Up to added_.size() results of the catalog may be dropped because the user added the same characters.
  all.limit = options.limit + added_.size();
  SearchResults found = Search::ofCatalog().query(text, all);
  if (added.results.empty() || found.results.empty() || added.approximate != found.approximate) {
    const bool onlyAdded = found.results.empty() || (found.approximate && !added.results.empty());
    if (onlyAdded)
      found = {{}, 0, added.approximate, added.lacksWords};
    else
      added = {};
  }
  const bool cut = found.results.size() < found.total;

  // For each added character that is also in the catalog: (position in the catalog, position in added_).
  std::vector<std::pair<std::size_t, std::size_t>> places;
  for (std::size_t i = 0; i < added_.size(); ++i) {
    if (const auto place = placeInCatalog(added_[i].computed.hex)) places.emplace_back(*place, i);
  }
  std::sort(places.begin(), places.end());
  std::vector<char> inCatalog(added_.size(), 0), seen(added_.size(), 0);
  for (const auto& [place, i] : places) inCatalog[i] = 1;
  for (SearchResult& result : found.results) {
    const auto twin = std::lower_bound(places.begin(), places.end(), std::pair{result.index, std::size_t{0}});
    const bool isTwin = twin != places.end() && twin->first == result.index;
    result.index = isTwin ? twin->second : result.index + added_.size();
    if (isTwin) seen[result.index] = 1;
  }
  std::size_t total = found.total;
  for (const SearchResult& result : added.results) {
    // If the catalog's results were truncated, a character of the catalog that is not in the returned part
    // is already counted in found.total.
    if (!seen[result.index] && !(cut && inCatalog[result.index])) ++total;
  }

  SearchResults merged{{}, total, found.approximate, found.lacksWords};
  std::vector<SearchResult> both;
  const auto isBefore = [](const SearchResult& a, const SearchResult& b) { return a.cost < b.cost; };
  // Among results of equal cost, those of the catalog come first, because the catalog has data about which of
  // its characters people want most.
  std::merge(std::make_move_iterator(found.results.begin()), std::make_move_iterator(found.results.end()),
             std::make_move_iterator(added.results.begin()), std::make_move_iterator(added.results.end()),
             std::back_inserter(both), isBefore);
  std::fill(seen.begin(), seen.end(), 0);
  for (SearchResult& result : both) {
    if (merged.results.size() == options.limit) break;
    if (isAdded(result) && std::exchange(seen[result.index], 1)) continue;
    merged.results.push_back(std::move(result));
  }
  return merged;
}

Entity CatalogSearch::entity(const SearchResult& result) const {
  if (isAdded(result)) return added_[result.index];
  return buildInEntity(result.index - added_.size()).value_or(Entity());
}

std::optional<Entity> CatalogSearch::entityOfHex(std::string_view hex) const {
  const auto added = std::find_if(added_.begin(), added_.end(),
                                  [&](const Entity& entity) { return entity.computed.hex == hex; });
  if (added != added_.end()) return *added;
  const auto place = placeInCatalog(hex);
  std::optional<Entity> entity = place ? buildInEntity(*place) : std::nullopt;
  return entity && entity->computed.hex == hex ? entity : std::nullopt;
}

bool CatalogSearch::isCurrent() const {
  return glyphorium().customAddedEntityUnicodes() == codes_;
}

}  // namespace glyph
