// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "glyphorium/entity/records.h"
#include "glyphorium/export.h"
#include "glyphorium/state/observed.h"
#include "glyphorium/state/settings_keys.h"

namespace glyph {

/// The character catalog. It is a value type; glyphorium() is the shared instance. Its functions do not
/// report errors: for bad input each function returns the neutral value that is documented with it, and
/// prints a diagnostic line that describes the problem. Do not use a catalog, or the library's global
/// lists, from two threads at once.
///
/// The only exception that the library throws is std::bad_alloc. Every function that is not noexcept may
/// throw it, unless its documentation says otherwise (see Search::query() for an example). After the
/// exception, each list of the catalog and each stored choice is either unchanged or complete. The function
/// can then be called again.
struct GLYPHORIUM_EXPORT Glyphorium {
  using ComputedEntity = glyph::ComputedEntity;
  using AdditionalData = glyph::AdditionalData;
  using AdditionalDataAdvice = glyph::AdditionalDataAdvice;
  using Entity = glyph::Entity;
  using Unicode = glyph::Unicode;
  using UserInfluencedEntityKey = glyph::UserInfluencedEntityKey;

  /// The number of entities of each group, indexed by group name. A group without entities has no key.
  using GroupCounts = std::map<std::string, std::int64_t>;

  Glyphorium();
  // Copying prints no diagnostic lines. There is no move constructor, because moving from glyphorium() would
  // empty the shared catalog without a message.
  Glyphorium(const Glyphorium& other);
  Glyphorium& operator=(const Glyphorium& other);
  ~Glyphorium();

  /// Hex codes that selectedEntities() never shows, in upper or lower case.
  std::vector<std::string> forbiddenUnicodes;

  /// The entities of the characters that the user added, in the order of adding. configure() fills the list.
  /// Every change prints one diagnostic line with the number of elements.
  Observed<std::vector<Entity>> allCustomEntities;

  /// The number of entities of each group. configure() fills the map. The operator [] returns 0 for a group
  /// without entities. Every change prints one diagnostic line with the number of groups.
  Observed<GroupCounts> allEntityGroupNamesWithCount;

  /// Becomes true whenever the displayed groups are stored. The host sets it back to false. Every assignment
  /// prints one diagnostic line with the value.
  Observed<bool> selectedGroupsHadChanged;

  /// Returns the entities of all configured tables, in the order of the tables, each with its enrichment. The
  /// list is empty before configure() is called. All configured catalogs share one list, which lives until
  /// the process ends. Its texts are constants in the library's read-only image.
  const std::vector<Entity>& buildInEntities() const;

  /// Fills the catalog from the embedded tables and the user's stored choices, and assigns
  /// selectedEntities(). Each further call replaces the whole content.
  void configure();

  /// Returns the names of the displayed groups, in display order. Every call reads the settings store.
  /// Returns ["custom"] if the store has no list of groups.
  std::vector<std::string> selectedGroups() const;

  /// Stores the names without checking them and sets selectedGroupsHadChanged to true. If the list contains
  /// "custom", this name is stored once, at the beginning. The displayed list does not change until the host
  /// calls setSelectedEntities().
  void setSelectedGroups(std::vector<std::string> groups);

  /// Reads the stored names, changes and stores them in one step: no other process can write between the
  /// reading and the writing.
  void modifySelectedGroups(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased name. Does nothing if the list already contains the lower-cased name.
  void addSelectedGroup(std::string_view named);

  /// Removes the name, ignoring upper and lower case. Stores the list even if no name was removed.
  void removeSelectedGroup(std::string_view named);

  /// Returns the hex codes (or hex lists, see CodeFormats) that the user added, in the order of adding.
  std::vector<std::string> customAddedEntityUnicodes() const;

  /// Stores the codes without checking them. Then updates allCustomEntities, selectedEntities() and, if
  /// EntityUserData::useSpotlightExtension() is on, the search index.
  void setCustomAddedEntityUnicodes(std::vector<std::string> codes);

  /// Changes the stored codes, with the same effects as setCustomAddedEntityUnicodes(). `change` receives the
  /// stored list. If another process stores a different list in the meantime, `change` is called again with
  /// that list. The library holds no lock while `change` runs.
  void modifyCustomAddedEntityUnicodes(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased code unless the list already contains it, adds "custom" to the displayed
  /// groups and updates allEntityGroupNamesWithCount. Has the effects of setCustomAddedEntityUnicodes()
  /// even if the code was already in the list.
  void addCustomAddedEntity(std::string_view unicode);

  /// Does the same as addCustomAddedEntity() for several codes in one change: either all codes are stored or
  /// no code is stored, and each effect happens once. The time is proportional to the number of codes. Does
  /// nothing if the list is empty.
  void addCustomAddedEntities(const std::vector<std::string>& unicodes);

  /// Removes the lower-cased code, with the same effects as addCustomAddedEntity(), except that the displayed
  /// groups do not change: "custom" stays displayed.
  void removeCustomAddedEntity(std::string_view unicode);

  /// Does the same as removeCustomAddedEntity() for several codes in one change. Does nothing if the list is
  /// empty.
  void removeCustomAddedEntities(const std::vector<std::string>& unicodes);

  /// Builds the displayed list and assigns it to selectedEntities(), which posts "contentHasChanged" once.
  /// The list consists of the entities of the displayed groups in code-point order, without the forbidden
  /// code points and the code points that cannot be displayed. Group names are compared without regard to
  /// upper and lower case. If several displayed groups contain the same code point, the list uses the entity
  /// of the group that comes first in selectedGroups().
  void setSelectedEntities();

  /// Decodes a group table: returns the rows of the JSON array. In the embedded table `latinBasicJson`, the
  /// symbols of U+0022 and U+005C lack the escapes that JSON requires; this function adds them before
  /// decoding. If the text cannot be decoded, returns nullopt and prints one diagnostic line with the reason.
  std::optional<std::vector<ComputedEntity>> getComputedEntitiesFrom(std::string_view json) const;

  /// Decodes an enrichment table: returns the rows of the JSON array. If the text cannot be decoded, returns
  /// nullopt and prints one diagnostic line with the reason.
  std::optional<std::vector<AdditionalData>> getAdditionalDataFrom(std::string_view json) const;

  /// Returns one entity for each record, in the same order. Each entity gets the first enrichment record with
  /// the same hex code, if there is one. Hex codes are compared byte for byte.
  std::vector<Entity> getEntitiesByEnriching(std::vector<ComputedEntity> records,
                                             const std::optional<std::vector<AdditionalData>>& with) const;

 private:
  std::vector<std::string> getBuildInEntityGroups();
  void setEntityGroupNamesWithCount();
  std::vector<Entity> getCustomEntities() const;
  std::vector<Entity> buildSelectedEntities() const;
  bool changeCustomAddedEntityUnicodes(const std::function<bool(std::vector<std::string>&)>& change);
  void changeSelectedGroups(const std::function<bool(std::vector<std::string>&)>& change);

  bool isConfigured_ = false;
};

/// Returns the shared catalog. The first call creates it; several threads may make this call at once. The
/// catalog is empty until configure() is called, and it lives until the process ends.
GLYPHORIUM_EXPORT Glyphorium& glyphorium();

/// Returns a copy of a single entity: the one that configure() puts at this index of buildInEntities().
/// This function is for programs that show only a few characters, such as results of Search::ofCatalog(),
/// and do not need the whole list. Returns nullopt if the index is too large. configure() need not have
/// been called. Any thread may call this function.
GLYPHORIUM_EXPORT std::optional<Entity> buildInEntity(std::size_t place);

/// Returns the group names in display order: "custom", then three fixed groups ("digital typography (latin)",
/// "design inspiration", "emoji"), then the other groups in ascending order. The list is empty until
/// configure() fills it, and it lives until the process ends.
GLYPHORIUM_EXPORT std::vector<std::string>& allBuildInEntityGroups();

}  // namespace glyph
