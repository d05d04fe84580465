// SPDX-License-Identifier: MIT
#include "glyphorium/search/search.h"

#include <new>
#include <utility>

#include "glyphorium/search/index_building.h"
#include "glyphorium/search/index_image.h"
#include "glyphorium/search/prepared_indexes.h"
#include "glyphorium/search/query_answering.h"
#include "glyphorium/search/query_parsing.h"

namespace glyph {

// An index image (see index_image.h), and an index that consists of views of this image.
struct Search::Own {
  explicit Own(search::IndexImage built) : image(std::move(built)), index(search::openIndex(image)) {}
  Own(const Own&) = delete;
  Own& operator=(const Own&) = delete;

  const search::IndexImage image;
  const search::Index index;
};

Search::Search(std::span<const Entity> entities) {
  try {
    auto own = std::make_shared<Own>(search::buildIndex(entities));
    index_ = {own, &own->index};
    byteCount_ = sizeof *own + own->image.size();
  } catch (const std::bad_alloc&) {
    // index_ stays null, so this Search finds nothing.
  }
}

Search::Search(std::shared_ptr<const search::Index> index, std::size_t byteCount)
    : index_(std::move(index)), byteCount_(byteCount) {}

Search Search::ofCatalog() {
  return {{std::shared_ptr<void>(), &search::catalogIndex()}, 0};
}

Search Search::ofCatalogBeside(const Search& added) {
  struct Changed {
    std::vector<std::uint8_t> priors;
    search::Index index;
  };
  const search::Index& catalog = search::catalogIndex();
  auto own = std::make_shared<Changed>(Changed{{catalog.docPrior.begin(), catalog.docPrior.end()}, catalog});
  for (std::uint32_t i = 0; added.index_ && i < added.index_->docCount(); ++i) {
    const std::uint32_t doc = catalog.docOfCodePoint(added.index_->docCodePoint[i]);
    if (doc != search::Index::noDoc) own->priors[doc] = added.index_->docPrior[i];
  }
  own->index.docPrior = own->priors;
  return {{own, &own->index}, sizeof *own + own->priors.size()};
}

SearchResults Search::query(std::string_view text, const SearchOptions& options) const {
  if (!index_) return {};
  try {
    auto parsed = search::parseQuery(text);
    if (!parsed) return {};
    return search::answer(*index_, *parsed, options, true).results;
  } catch (const std::bad_alloc&) {
    return {};
  }
}

std::optional<std::size_t> Search::indexOfDoc(std::uint32_t doc) const noexcept {
  if (doc == search::Index::noDoc) return std::nullopt;
  return index_->docEntity[doc];
}

std::optional<std::size_t> Search::indexOf(char32_t codePoint) const noexcept {
  return index_ ? indexOfDoc(index_->docOfCodePoint(codePoint)) : std::nullopt;
}

std::optional<std::size_t> Search::indexOfHtmlName(std::string_view name) const noexcept {
  return index_ ? indexOfDoc(index_->docOfHtmlName(name)) : std::nullopt;
}

std::size_t Search::byteCount() const noexcept {
  return byteCount_;
}

}  // namespace glyph
