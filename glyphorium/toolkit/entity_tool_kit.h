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

/// Operations on entities and, inherited, the code formats. The toolkit has no state.
class GLYPHORIUM_EXPORT EntityToolKit : public CodeFormats {
 public:
  /// The records with their names. Each takes `fallbackName` and `isSFSymbol` from the first entry of the
  /// Unicode name table with its hex code, in upper or lower case; a record without an entry stays unchanged.
  /// Then records are removed that have no name or the name "<control>", and those of the group "Private Use
  /// Area". Any thread may call it.
  std::vector<ComputedEntity> addNames(std::vector<ComputedEntity> to) const;

  /// Posts "contentHasChanged" on NotificationCenter::defaultCenter(). A host uses it to make its views
  /// refresh.
  void sendContentHasChangedNotification() const;

  /// Replaces the whole content of pasteboard() by the text, then posts "entityCopied" on
  /// NotificationCenter::defaultCenter(). The notification's object is `displayedValue`, or the text if that
  /// is nullopt. The result says whether the pasteboard took the text; the notification is posted in any
  /// case.
  bool writeToPasteboard(std::string_view text,
                         const std::optional<std::string>& displayedValue = std::nullopt) const;

  /// The item by which the desktop's search finds the entity. Its title is the symbol and the name, its
  /// comment the usage note, its genre the group; its keywords are the parts of the search string.
  SearchableItem searchableItem(const Entity& entity) const;

  /// Hands searchableIndex() one request to add or replace the items of the entities. Does not wait for it;
  /// the index calls the completion when the request is done.
  void addToSpotlight(const std::vector<Entity>& entities, SearchableIndex::Completion completion = {}) const;

  /// Hands searchableIndex() one request to delete the items with the entities' hex codes. Does not wait for
  /// it.
  void removeFromSpotlight(const std::vector<Entity>& entities) const;

  /// Hands searchableIndex() one request to delete all items of the application. Does not wait for it.
  void resetSpotlight() const;
};

/// The shared toolkit. It lives until the process ends.
GLYPHORIUM_EXPORT EntityToolKit& toolKit();

}  // namespace glyph
