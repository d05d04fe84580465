// SPDX-License-Identifier: MIT
#include "glyphorium/search/catalog_search.h"

#include <algorithm>
#include <utility>

#include "glyphorium/catalog/custom_entities.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/search/merging.h"
#include "glyphorium/search/prepared_indexes.h"
#include "glyphorium/search/query_parsing.h"
#include "glyphorium/search/skin_tones.h"
#include "glyphorium/search/supplement_search.h"
#include "glyphorium/search/text_parts.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the place of the character with this hex code ("2192"), or of the emoji with this hex list
// ("1f1e9,1f1ea"). A place is a number that stands for a character of the catalog or the supplement: see
// supplement_search.h.
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
  if (added_.empty()) return;
  addedSearch_.emplace(added_);
  catalog_ = Search::ofCatalogBeside(*addedSearch_);
  for (std::size_t i = 0; i < added_.size(); ++i) {
    if (const auto place = placeOfHex(added_[i].computed.hex)) known_.emplace_back(*place, i);
  }
  std::sort(known_.begin(), known_.end());
}

SearchResults CatalogSearch::query(std::string_view text, const SearchOptions& options) const {
  const bool inGroups = !options.groups.empty() || search::namesGroup(text);
  const auto search = [&](const SearchOptions& wanted) {
    if (inGroups || !wanted.supplement) return catalog_.query(text, wanted);  // the supplement has no groups
    SearchResults found = search::queryEverything(*catalog_.index_, text, wanted);
    if (tone_ != SkinTone::none) useTone(found);
    return found;
  };
  if (!addedSearch_) return search(options);
  SearchOptions all = options;
  all.limit = added_.size();
  SearchResults added = addedSearch_->query(text, all);
  // A character that the user added may also be in the catalog or the supplement. Then it is in `found` and
  // in `added`, but counts once. So `found` may need up to added_.size() results more than the limit.
  all.limit = options.limit + added_.size();
  SearchResults found = search(all);
  enum : char { onlyAdded, inCatalog, inSupplement, isFound };
  std::vector<char> states(added_.size(), onlyAdded);
  for (const auto& [place, i] : known_) states[i] = place < preparedRowCount() ? inCatalog : inSupplement;
  const bool cut = found.results.size() < found.total;
  for (SearchResult& result : found.results) {
    const auto twin = addedAt(result.index);
    result.index = twin ? *twin : result.index + added_.size();
    if (twin && states[*twin] == inSupplement) states[*twin] = isFound;
  }
  std::erase_if(added.results, [&](const SearchResult& result) {
    const char state = states[result.index];
    // If the character is also in the catalog, `found` has its result, so the result in `added` is dropped.
    // In a search by group it is kept: only the added character is in the group "custom".
    const bool isRepeated = state == inCatalog && !inGroups;
    // If the limit cut off results of the supplement, this character may be one of them. Then found.total
    // counts it already.
    if (isRepeated || (state == inSupplement && cut)) --added.total;
    return isRepeated;
  });
  return search::merged(std::move(found), std::move(added), options.limit);
}

// Returns the position in added_ of the character that has this place in the catalog or the supplement.
// Returns nullopt if the user did not add the character.
std::optional<std::size_t> CatalogSearch::addedAt(std::size_t place) const {
  const auto found = std::lower_bound(known_.begin(), known_.end(), std::pair{place, std::size_t{0}});
  return found != known_.end() && found->first == place ? std::optional(found->second) : std::nullopt;
}

// Gives emoji the preferred skin tone, except those that the query itself contains or that the user added.
void CatalogSearch::useTone(SearchResults& found) const {
  for (SearchResult& result : found.results) {
    if (search::isInQuery(result) || addedAt(result.index)) continue;
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
