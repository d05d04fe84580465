// SPDX-License-Identifier: MIT
#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <vector>

#include "glyphorium/export.h"

namespace glyph {

/// One item that users can find with the desktop's search.
struct SearchableItem {
  std::string uniqueIdentifier;  ///< the key: a new item replaces an older one with the same key
  std::string domainIdentifier;
  std::string contentType;
  std::string title;  ///< a symbol, a tab and the symbol's name; or only a name
  std::optional<std::string> comment;
  std::string genre;
  std::vector<std::string> keywords;
  /// The symbol at the beginning of the title, before the tab. Empty if the title is only a name. This field
  /// exists because the symbol can itself be a tab, so the end of the symbol cannot be found in the title.
  std::string symbol = {};

  /// Returns the title without the symbol and the tab after it.
  GLYPHORIUM_EXPORT std::string name() const;

  bool operator==(const SearchableItem&) const = default;
};

/// The amount of work in the requests that an index has not carried out yet.
struct PendingIndexWork {
  std::size_t requests = 0;
  std::size_t items = 0;  ///< the number of items and identifiers in these requests

  bool operator==(const PendingIndexWork&) const = default;
};

/// The index of the application's own items for the desktop's search. A request returns immediately and is
/// carried out later. Requests are carried out in the order in which they were made. Requests do not throw.
/// All functions may be called from any thread.
class GLYPHORIUM_EXPORT SearchableIndex {
 public:
  /// A function that the index calls exactly once, on any thread, when a request is done. The argument is
  /// nullopt after a success, otherwise a message with the reason of the failure. The function may make
  /// further requests, but must not wait for the index. It may be empty.
  using Completion = std::function<void(std::optional<std::string> error)>;
  using Progress = std::function<void(PendingIndexWork left)>;

  virtual ~SearchableIndex();

  /// Adds the items. Each item replaces an existing item with the same unique identifier. If several of the
  /// given items have the same identifier, the last of these items is added.
  virtual void indexItems(std::vector<SearchableItem> items, Completion completion) = 0;
  /// Deletes the items that have these unique identifiers. Unknown identifiers are ignored.
  virtual void deleteItems(std::vector<std::string> identifiers, Completion completion) = 0;
  /// Deletes every item of the application.
  virtual void deleteAllItems(Completion completion) = 0;

  /// Waits until all requests are carried out, but at most for the time `limit`. Programs that must not end
  /// while work remains call this. Calls `progress` on the calling thread with the remaining work, once at
  /// the beginning and then whenever the amount has changed. Returns true if no work remains.
  virtual bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress = {}) = 0;
};

/// Returns the current index. This is a SqliteSearchableIndex in the application's data directory, unless the
/// host has set another index. Never null. At its end, the program waits until the current index has carried
/// out its requests, but at most a few seconds.
GLYPHORIUM_EXPORT std::shared_ptr<SearchableIndex> searchableIndex();

/// Replaces the current index with the host's own index. Null restores the default. May be called from any
/// thread.
GLYPHORIUM_EXPORT void setSearchableIndex(std::shared_ptr<SearchableIndex> replacement);

/// A request that a MemorySearchableIndex has received.
struct SearchableIndexRequest {
  enum class Kind { indexItems, deleteItems, deleteAllItems };

  Kind kind;
  std::vector<SearchableItem> items;     ///< the items to add if `kind` is indexItems
  std::vector<std::string> identifiers;  ///< the items to delete if `kind` is deleteItems

  bool operator==(const SearchableIndexRequest&) const = default;
};

/// An index in the memory of this process, for tests and for hosts without a desktop. It carries out each
/// request immediately, calls the completion on the calling thread, and records the request.
class GLYPHORIUM_EXPORT MemorySearchableIndex final : public SearchableIndex {
 public:
  void indexItems(std::vector<SearchableItem> items, Completion completion) override;
  void deleteItems(std::vector<std::string> identifiers, Completion completion) override;
  void deleteAllItems(Completion completion) override;
  bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress = {}) override;

  std::vector<SearchableItem> items() const;             ///< all items, in the order in which they were added
  std::vector<SearchableIndexRequest> requests() const;  ///< all requests so far, in order

 private:
  void record(SearchableIndexRequest request, const Completion& completion);

  mutable std::mutex mutex_;
  std::vector<SearchableItem> items_;
  std::vector<SearchableIndexRequest> requests_;
};

}  // namespace glyph
