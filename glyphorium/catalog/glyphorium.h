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

/// The character catalog. It is a value type; glyphorium() is the shared instance. Operations report no
/// errors: bad input gives the neutral value that the operation names, and a diagnostic line says what went
/// wrong. Do not use a catalog, or the module's globals, from two threads at once.
///
/// The only exception that leaves the library is std::bad_alloc. Every function that is not noexcept may
/// throw it, unless its declaration says otherwise, as that of Search::query() does. Afterwards each list of
/// the catalog and each stored choice is either as before or complete, and the operation can be repeated.
struct GLYPHORIUM_EXPORT Glyphorium {
  using ComputedEntity = glyph::ComputedEntity;
  using AdditionalData = glyph::AdditionalData;
  using AdditionalDataAdvice = glyph::AdditionalDataAdvice;
  using Entity = glyph::Entity;
  using Unicode = glyph::Unicode;
  using UserInfluencedEntityKey = glyph::UserInfluencedEntityKey;

  /// The number of entities by group name. A group without entities has no key.
  using GroupCounts = std::map<std::string, std::int64_t>;

  Glyphorium();
  // Copying prints no diagnostic lines. There is no move constructor: it would empty glyphorium() silently.
  Glyphorium(const Glyphorium& other);
  Glyphorium& operator=(const Glyphorium& other);
  ~Glyphorium();

  /// Hex codes that selectedEntities() never shows, in upper or lower case.
  std::vector<std::string> forbiddenUnicodes;

  /// The characters that the user added, in the order of adding; filled by configure().
  /// Every change prints one diagnostic line with the number of elements.
  Observed<std::vector<Entity>> allCustomEntities;

  /// How many entities each group has, filled by configure(); [] gives 0 for a group without entities. Every
  /// change prints one diagnostic line with the number of groups.
  Observed<GroupCounts> allEntityGroupNamesWithCount;

  /// Set to true by every write of the displayed groups. The host sets it back to false. Every assignment
  /// prints one diagnostic line with the value.
  Observed<bool> selectedGroupsHadChanged;

  /// The entities of all configured tables, in their order, each with its enrichment; empty before
  /// configure().
  const std::vector<Entity>& buildInEntities() const { return allBuildInEntities_; }

  /// Fills the catalog from the embedded tables and the user's stored choices, and assigns
  /// selectedEntities(). It may be called again at any time and then replaces everything.
  void configure();

  /// The names of the displayed groups, in display order. Every call reads the settings store. If it holds no
  /// list, the result is ["custom"].
  std::vector<std::string> selectedGroups() const;

  /// Stores the names, which are not checked, and raises selectedGroupsHadChanged. If "custom" is among them,
  /// it is stored once and in front. The displayed list stays unchanged until the host calls
  /// setSelectedEntities().
  void setSelectedGroups(std::vector<std::string> groups);

  /// Reads the stored names, changes them and stores them as one step: no other process can write in between.
  void modifySelectedGroups(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased name. Does nothing if the list already holds it.
  void addSelectedGroup(std::string_view named);

  /// Removes the name in all spellings of upper and lower case. The list is stored even if nothing was
  /// removed.
  void removeSelectedGroup(std::string_view named);

  /// The hex codes (or hex lists, see CodeFormats) that the user added, in the order of adding.
  std::vector<std::string> customAddedEntityUnicodes() const;

  /// Stores the codes, which are not checked. Then updates allCustomEntities, selectedEntities() and, if
  /// EntityUserData::useSpotlightExtension() is on, the search index.
  void setCustomAddedEntityUnicodes(std::vector<std::string> codes);

  /// Changes the stored codes, with the same effects. `change` gets the present list. It is called again,
  /// with the new list, if another process has stored one in the meantime. No lock is held while it runs.
  void modifyCustomAddedEntityUnicodes(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased code unless the list holds it, adds "custom" to the displayed groups and counts
  /// the groups again. Has the effects of setCustomAddedEntityUnicodes() in any case.
  void addCustomAddedEntity(std::string_view unicode);

  /// Does the same for several codes as one change: all of them are stored or none, and each effect happens
  /// once. Takes time in proportion to their number. Does nothing for an empty list.
  void addCustomAddedEntities(const std::vector<std::string>& unicodes);

  /// Removes the lower-cased code, with the same effects. The group "custom" stays displayed.
  void removeCustomAddedEntity(std::string_view unicode);

  /// Does the same for several codes as one change.
  void removeCustomAddedEntities(const std::vector<std::string>& unicodes);

  /// Builds the displayed list and assigns it to selectedEntities(), which posts "contentHasChanged" once.
  /// The list holds the entities of the displayed groups (group names in upper or lower case) in code-point
  /// order, without the forbidden code points and those that cannot be displayed. If several groups hold a
  /// code point, the entity of the first of them in selectedGroups() is taken.
  void setSelectedEntities();

  /// The rows of a group table in JSON. `latinBasicJson` holds the symbols of U+0022 and U+005C without the
  /// escapes that JSON requires; they are escaped before decoding. If the text cannot be decoded, the result
  /// is nullopt and one diagnostic line says why.
  std::optional<std::vector<ComputedEntity>> getComputedEntitiesFrom(std::string_view json) const;

  /// The rows of an enrichment table in JSON. Errors as with getComputedEntitiesFrom().
  std::optional<std::vector<AdditionalData>> getAdditionalDataFrom(std::string_view json) const;

  /// One entity for each record, in the same order. Each gets the first enrichment record with the same hex
  /// code, compared byte for byte, if there is one.
  std::vector<Entity> getEntitiesByEnriching(std::vector<ComputedEntity> records,
                                             const std::optional<std::vector<AdditionalData>>& with) const;

 private:
  std::vector<std::string> getBuildInEntityGroups();
  void setEntityGroupNamesWithCount();
  std::vector<Entity> getCustomEntities() const;
  std::vector<Entity> buildSelectedEntities() const;
  bool changeCustomAddedEntityUnicodes(const std::function<bool(std::vector<std::string>&)>& change);
  void changeSelectedGroups(const std::function<bool(std::vector<std::string>&)>& change);

  std::vector<std::string_view> entityData_;  // the texts of the configured group tables
  std::vector<std::string>
      notDisplayableUnicodes_;  // dropped from selectedEntities() like the forbidden ones
  Observed<std::vector<Entity>> allBuildInEntities_;
};

/// The shared catalog. It is created on first use, which is safe from several threads, and lives until the
/// process ends. It is empty until configure() is called.
GLYPHORIUM_EXPORT Glyphorium& glyphorium();

/// The entity that configure() puts at that place of buildInEntities(), decoded alone. It is for programs
/// that show a few characters, such as results of Search::ofCatalog(), and do not need the whole list.
/// nullopt if there is no such place. It does not need configure(); any thread may call it.
GLYPHORIUM_EXPORT std::optional<Entity> buildInEntity(std::size_t place);

/// The group names in display order: "custom", the three groups that are chosen by hand, then the others in
/// ascending order. Empty until configure() fills it. It lives until the process ends.
GLYPHORIUM_EXPORT std::vector<std::string>& allBuildInEntityGroups();

}  // namespace glyph
