// SPDX-License-Identifier: MIT
#include "glyphorium/services/search_index/searchable_index.h"

#include <string_view>
#include <unordered_map>
#include <utility>

#include "glyphorium/services/search_index/sqlite_searchable_index.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

struct Current {
  std::mutex mutex;
  std::shared_ptr<SearchableIndex> index;
};

Current& current();

// A host expects that every request is carried out, so the program waits for the requests of the current
// index before it ends.
struct DrainAtExit {
  ~DrainAtExit() {
    std::shared_ptr<SearchableIndex> last;
    {
      const std::lock_guard lock(current().mutex);
      last = current().index;
    }
    if (!last) return;
    // The index stays the current one while the program waits, because completions may send it further
    // requests.
    last->waitUntilIdle(std::chrono::seconds(5));
    const std::lock_guard lock(current().mutex);
    if (current().index == last) current().index.reset();
  }
};

Current& current() {
  static NeverDestroyed<Current> instance;
  static const DrainAtExit drainAtExit;
  return *instance;
}

}  // namespace

std::string SearchableItem::name() const {
  return title.starts_with(symbol + '\t') ? title.substr(symbol.size() + 1) : title;
}

SearchableIndex::~SearchableIndex() = default;

std::shared_ptr<SearchableIndex> searchableIndex() {
  const std::lock_guard lock(current().mutex);
  auto& index = current().index;
  if (!index) index = std::make_shared<SqliteSearchableIndex>();
  return index;
}

void setSearchableIndex(std::shared_ptr<SearchableIndex> replacement) {
  const std::lock_guard lock(current().mutex);
  current().index.swap(replacement);
}

void MemorySearchableIndex::record(SearchableIndexRequest request, const Completion& completion) {
  {
    const std::lock_guard lock(mutex_);
    std::unordered_map<std::string_view, const SearchableItem*> last;  // null for an item to delete
    for (const auto& identifier : request.identifiers) last[identifier] = nullptr;
    for (const auto& item : request.items) last[item.uniqueIdentifier] = &item;
    std::erase_if(items_, [&](const auto& item) { return last.contains(item.uniqueIdentifier); });
    for (const auto& item : request.items) {
      if (last.at(item.uniqueIdentifier) == &item) items_.push_back(item);
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
