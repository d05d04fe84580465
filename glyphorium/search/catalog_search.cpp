// SPDX-License-Identifier: MIT
#include "glyphorium/search/catalog_search.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "glyphorium/catalog/custom_entities.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/skin_tones.h"
#include "glyphorium/search/supplement_search.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the place (see supplement_search.h) of the character with this hex code, or of the emoji with this
// hex list.
std::optional<std::size_t> placeOfHex(std::string_view hex) {
  std::string text;
  for (std::string_view rest = hex; !rest.empty();) {
    const auto codePoint = ascii::number(search::takePart(rest, ','), 16);
    if (!codePoint || utf8(*codePoint).empty()) return std::nullopt;
    text += utf8(*codePoint);
  }
  return search::placeOf(text);
}

}  // namespace

CatalogSearch::CatalogSearch() : CatalogSearch(glyphorium().customAddedEntityUnicodes()) {}

CatalogSearch::CatalogSearch(std::vector<std::string> addedCodes)
    : codes_(std::move(addedCodes)), tone_(preferredSkinTone()), added_(customEntities(codes_)) {
  if (!added_.empty()) addedSearch_.emplace(added_);
}

SearchResults CatalogSearch::query(std::string_view text, const SearchOptions& options) const {
  const auto search = [&](const SearchOptions& wanted) {
    // The supplement has no groups.
    const bool everywhere = wanted.supplement && wanted.groups.empty() && !search::namesGroup(text);
    if (!everywhere) return Search::ofCatalog().query(text, wanted);
    SearchResults found = search::queryEverything(text, wanted);
    if (tone_ != SkinTone::none) useTone(found);
    return found;
  };
  if (!addedSearch_) return search(options);
  SearchOptions all = options;
  all.limit = added_.size();
  SearchResults added = addedSearch_->query(text, all);
  // Up to added_.size() results of the catalog may be dropped because the user added the same characters.
  all.limit = options.limit + added_.size();
  SearchResults found = search(all);
  if (added.results.empty() || found.results.empty() || added.approximate != found.approximate) {
    const bool onlyAdded = found.results.empty() || (found.approximate && !added.results.empty());
    if (onlyAdded)
      found = {{}, 0, added.approximate, added.lacksWords};
    else
      added = {};
  }
  const bool cut = found.results.size() < found.total;

  // For each added character that is also in the catalog or the supplement: (place, position in added_).
  std::vector<std::pair<std::size_t, std::size_t>> places;
  for (std::size_t i = 0; i < added_.size(); ++i) {
    if (const auto place = placeOfHex(added_[i].computed.hex)) places.emplace_back(*place, i);
  }
  std::sort(places.begin(), places.end());
  std::vector<char> isKnown(added_.size(), 0), seen(added_.size(), 0);
  for (const auto& [place, i] : places) isKnown[i] = 1;
  for (SearchResult& result : found.results) {
    const auto twin = std::lower_bound(places.begin(), places.end(), std::pair{result.index, std::size_t{0}});
    const bool isTwin = twin != places.end() && twin->first == result.index;
    result.index = isTwin ? twin->second : result.index + added_.size();
    if (isTwin) seen[result.index] = 1;
  }
  std::size_t total = found.total;
  for (const SearchResult& result : added.results) {
    // If the results of the catalog were truncated, found.total also counts the characters that were cut off.
    // So an added character that is one of them must not be counted again.
    if (!seen[result.index] && !(cut && isKnown[result.index])) ++total;
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
    if (isOfUser(result) && std::exchange(seen[result.index], 1)) continue;
    merged.results.push_back(std::move(result));
  }
  return merged;
}

// Gives emoji the preferred skin tone, except an emoji that the query itself contains.
void CatalogSearch::useTone(SearchResults& found) const {
  for (SearchResult& result : found.results) {
    if (search::isInQuery(result)) continue;
    const std::string text = search::textAt(result.index);
    const std::string toned = search::skinTonesOf(text).empty() ? withSkinTone(text, tone_) : text;
    if (toned == text) continue;
    result.index = search::placeOf(toned).value_or(result.index);
    result.nameRanges.clear();
  }
}

bool CatalogSearch::isInCatalog(const SearchResult& result) const {
  return !isOfUser(result) && result.index - added_.size() < preparedRowCount();
}

Entity CatalogSearch::entity(const SearchResult& result) const {
  if (isOfUser(result)) return added_[result.index];
  const std::size_t place = result.index - added_.size();
  return isInCatalog(result) ? *buildInEntity(place) : supplementEntity(search::textAt(place));
}

std::optional<Entity> CatalogSearch::entityOfHex(std::string_view hex) const {
  const auto added = std::find_if(added_.begin(), added_.end(),
                                  [&](const Entity& entity) { return entity.computed.hex == hex; });
  if (added != added_.end()) return *added;
  const auto place = placeOfHex(hex);
  if (!place) return std::nullopt;
  Entity entity = this->entity({*place + added_.size(), SearchField::code, {}});
  const bool isNamed = !entity.name().empty() && !entity.name().starts_with('<');
  return isNamed && entity.computed.hex == hex ? std::optional(std::move(entity)) : std::nullopt;
}

bool CatalogSearch::isCurrent() const {
  return glyphorium().customAddedEntityUnicodes() == codes_ && preferredSkinTone() == tone_;
}

}  // namespace glyph
