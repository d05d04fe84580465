// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/codes/code_formats.h"
#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/services/search_index/searchable_index.h"

namespace glyph {

/// Operations on entities. The class inherits the conversions of CodeFormats and has no state.
class GLYPHORIUM_EXPORT EntityToolKit : public CodeFormats {
 public:
  /// Returns the records with their names. Each record gets `fallbackName` and `isSFSymbol` from the first
  /// entry of the Unicode name table that has the hex code of the record, in upper or lower case. A record
  /// without an entry is not changed. Finally, the records without a name, with the name "<control>" or of
  /// the group "Private Use Area" are removed. Any thread may call this function.
  std::vector<ComputedEntity> addNames(std::vector<ComputedEntity> to) const;

  /// Posts "contentHasChanged" on NotificationCenter::defaultCenter(). A host calls this function to refresh
  /// its views.
  void sendContentHasChangedNotification() const;

  /// Replaces the whole content of pasteboard() with the text, then posts "entityCopied" on
  /// NotificationCenter::defaultCenter(). The object of the notification is `displayedValue`, or the text if
  /// `displayedValue` is nullopt. Returns whether the pasteboard accepted the text. The notification is
  /// posted even if the pasteboard did not accept the text.
  bool writeToPasteboard(std::string_view text,
                         const std::optional<std::string>& displayedValue = std::nullopt) const;

  /// Returns the item that represents the entity in the desktop's search. The title consists of the symbol
  /// and the name, the comment is the usage note, the genre is the group, and the keywords include the
  /// words of the search string.
  SearchableItem searchableItem(const Entity& entity) const;

  /// Sends searchableIndex() one request to add or replace the items of the entities. Does not wait for the
  /// request; the index calls `completion` when the request is done.
  void addToSpotlight(const std::vector<Entity>& entities, SearchableIndex::Completion completion = {}) const;

  /// Sends searchableIndex() one request to delete the items with the entities' hex codes. Does not wait for
  /// the request.
  void removeFromSpotlight(const std::vector<Entity>& entities) const;

  /// Sends searchableIndex() one request to delete all items of the application. Does not wait for the
  /// request.
  void resetSpotlight() const;
};

/// Returns the shared toolkit. It lives until the process ends.
GLYPHORIUM_EXPORT EntityToolKit& toolKit();

}  // namespace glyph
