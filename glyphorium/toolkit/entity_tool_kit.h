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

/// The stateless toolkit: the code formats, and what it does with entities.
class GLYPHORIUM_EXPORT EntityToolKit : public CodeFormats {
 public:
  /// Name completion: the records with `fallbackName` and `isSFSymbol` from the first entry of the Unicode
  /// name table with their hex code (letter case does not count). A record without an entry keeps what it
  /// has. Left out of the result are records then named "<control>" or without a name, and those of the group
  /// "Private Use Area". May run on any thread.
  std::vector<ComputedEntity> addNames(std::vector<ComputedEntity> to) const;

  /// Posts "contentHasChanged" without changing anything: asks the host's own views to refresh.
  void sendContentHasChangedNotification() const;

  /// Replaces the content of pasteboard() by the text, as the one plain text there, and then posts
  /// "entityCopied" with `displayedValue` as its object, or with the text where there is none. It is posted
  /// also where the pasteboard did not take the text, which the result tells.
  bool writeToPasteboard(std::string_view text,
                         const std::optional<std::string>& displayedValue = std::nullopt) const;

  /// The item by which the desktop's search finds the entity: its symbol and name as title, its usage note as
  /// comment, its group as genre, and all of its search string as keywords.
  SearchableItem searchableItem(const Entity& entity) const;

  /// Hands searchableIndex() one request to add, or replace, an item for each entity, and does not wait for
  /// it.
  void addToSpotlight(const std::vector<Entity>& entities) const;

  /// Hands searchableIndex() one request to delete the items of the entities' hex codes.
  void removeFromSpotlight(const std::vector<Entity>& entities) const;

  /// Hands searchableIndex() one request to delete all of the application's items.
  void resetSpotlight() const;
};

/// The shared toolkit.
GLYPHORIUM_EXPORT EntityToolKit& toolKit();

}  // namespace glyph
