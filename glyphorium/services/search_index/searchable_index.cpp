// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/searchable_index.h"

#include <algorithm>
#include <utility>

#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct InPlace {
  std::mutex mutex;
  std::shared_ptr<SearchableIndex> index;
};

InPlace& inPlace();

// A host expects that every request is carried out. Therefore the program waits for the current index before
// it ends.
struct DrainAtExit {
  ~DrainAtExit() {
    std::shared_ptr<SearchableIndex> last;
    {
      const std::lock_guard lock(inPlace().mutex);
      last = inPlace().index;
    }
    if (!last) return;
    // The index stays in place meanwhile: completions may make further requests of it.
    last->waitUntilIdle(std::chrono::seconds(5));
    const std::lock_guard lock(inPlace().mutex);
    if (inPlace().index == last) inPlace().index.reset();
  }
};

InPlace& inPlace() {
  static NeverDestroyed<InPlace> instance;
  static const DrainAtExit drainAtExit;
  return *instance;
}

}  // namespace

std::string SearchableItem::name() const {
  return title.starts_with(symbol + '\t') ? title.substr(symbol.size() + 1) : title;
}

SearchableIndex::~SearchableIndex() = default;

std::shared_ptr<SearchableIndex> searchableIndex() {
  const std::lock_guard lock(inPlace().mutex);
  auto& index = inPlace().index;
  if (!index) index = std::make_shared<SqliteSearchableIndex>();
  return index;
}

void setSearchableIndex(std::shared_ptr<SearchableIndex> replacement) {
  const std::lock_guard lock(inPlace().mutex);
  inPlace().index.swap(replacement);
}

void MemorySearchableIndex::record(SearchableIndexRequest request, const Completion& completion) {
  {
    const std::lock_guard lock(mutex_);
    const auto erase = [&](const std::string& identifier) {
      std::erase_if(items_, [&](const auto& item) { return item.uniqueIdentifier == identifier; });
    };
    for (const auto& identifier : request.identifiers) erase(identifier);
    for (const auto& item : request.items) {
      erase(item.uniqueIdentifier);
      items_.push_back(item);
    }
    if (request.kind == SearchableIndexRequest::Kind::deleteAllItems) items_.clear();
    requests_.push_back(std::move(request));
  }
  if (completion) completion(std::nullopt);
}

void MemorySearchableIndex::indexItems(std::vector<SearchableItem> items, Completion completion) {
  record({SearchableIndexRequest::Kind::indexItems, std::move(items), {}}, completion);
}

void MemorySearchableIndex::deleteItems(std::vector<std::string> identifiers, Completion completion) {
  record({SearchableIndexRequest::Kind::deleteItems, {}, std::move(identifiers)}, completion);
}

void MemorySearchableIndex::deleteAllItems(Completion completion) {
  record({SearchableIndexRequest::Kind::deleteAllItems, {}, {}}, completion);
}

bool MemorySearchableIndex::waitUntilIdle(std::chrono::milliseconds, const Progress& progress) {
  if (progress) progress({});
  return true;
}

std::vector<SearchableItem> MemorySearchableIndex::items() const {
  const std::lock_guard lock(mutex_);
  return items_;
}

std::vector<SearchableIndexRequest> MemorySearchableIndex::requests() const {
  const std::lock_guard lock(mutex_);
  return requests_;
}

}  // namespace glyph
