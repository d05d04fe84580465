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

/// One thing that people can find in the desktop's search.
struct SearchableItem {
  std::string uniqueIdentifier;  ///< the item's key: an item replaces the one before of the same identifier
  std::string domainIdentifier;
  std::string contentType;
  std::string title;  ///< a symbol, a tab and its name, or a name alone
  std::optional<std::string> comment;
  std::string genre;
  std::vector<std::string> keywords;
  /// What the title begins with, before the tab; empty where the title is a name alone. The symbol may be a
  /// tab itself, so the title alone does not tell where the symbol ends.
  std::string symbol = {};

  /// The title without the symbol and the tab behind it.
  GLYPHORIUM_EXPORT std::string name() const;

  bool operator==(const SearchableItem&) const = default;
};

/// The requests that an index was given and has not carried out yet.
struct PendingIndexWork {
  std::size_t requests = 0;
  std::size_t items = 0;  ///< the items and identifiers in those requests

  bool operator==(const PendingIndexWork&) const = default;
};

/// The application's own items in the desktop's search. Every request returns without waiting; requests are
/// carried out in the order given. None throws. Safe to call from any thread.
class GLYPHORIUM_EXPORT SearchableIndex {
 public:
  /// Called exactly once when its request is done, on any thread: with nothing on success, else with the
  /// reason, for people. It may make further requests, but must not wait for the index. May be empty.
  using Completion = std::function<void(std::optional<std::string> error)>;
  using Progress = std::function<void(PendingIndexWork left)>;

  virtual ~SearchableIndex();

  /// Adds the items, each in the place of the one of its identifier; of equal identifiers the last counts.
  virtual void indexItems(std::vector<SearchableItem> items, Completion completion) = 0;
  /// Deletes the items of these unique identifiers, whatever their other fields; unknown ones are skipped.
  virtual void deleteItems(std::vector<std::string> identifiers, Completion completion) = 0;
  /// Deletes every item of the application.
  virtual void deleteAllItems(Completion completion) = 0;

  /// Waits until all requests are carried out, for `limit` at most: for programs that must not end before.
  /// Calls `progress` on the calling thread with the work that is left, once at the beginning and then
  /// whenever it has changed. True where nothing is left.
  virtual bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress = {}) = 0;
};

/// The index in place: until a host sets another, the SqliteSearchableIndex of the application's data
/// directory. Never null. At the end of the program the index in place is waited for, a few seconds at most.
GLYPHORIUM_EXPORT std::shared_ptr<SearchableIndex> searchableIndex();

/// Puts the host's index in place; null goes back to the default.
GLYPHORIUM_EXPORT void setSearchableIndex(std::shared_ptr<SearchableIndex> replacement);

/// A request that a MemorySearchableIndex was given.
struct SearchableIndexRequest {
  enum class Kind { indexItems, deleteItems, deleteAllItems };

  Kind kind;
  std::vector<SearchableItem> items;     ///< of indexItems
  std::vector<std::string> identifiers;  ///< of deleteItems

  bool operator==(const SearchableIndexRequest&) const = default;
};

/// An index of this process alone that carries out and remembers every request at once, for tests and for
/// hosts without a desktop.
class GLYPHORIUM_EXPORT MemorySearchableIndex final : public SearchableIndex {
 public:
  void indexItems(std::vector<SearchableItem> items, Completion completion) override;
  void deleteItems(std::vector<std::string> identifiers, Completion completion) override;
  void deleteAllItems(Completion completion) override;
  bool waitUntilIdle(std::chrono::milliseconds limit, const Progress& progress = {}) override;

  std::vector<SearchableItem> items() const;             ///< what it holds, in the order of indexing
  std::vector<SearchableIndexRequest> requests() const;  ///< all so far, in order

 private:
  void record(SearchableIndexRequest request, const Completion& completion);

  mutable std::mutex mutex_;
  std::vector<SearchableItem> items_;
  std::vector<SearchableIndexRequest> requests_;
};

}  // namespace glyph
