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

/// The character catalog: a value, of which glyphorium() is the shared instance. No operation throws or
/// reports an error; bad input gives the neutral value named with the operation, and what went wrong is a
/// diagnostic line. A catalog and the module's globals must not be used from two threads at once.
///
/// The one exception, here and in the rest of the library, is std::bad_alloc: a neutral value in the place of
/// what there is no memory for would be a lie. It may come from everything that is not noexcept. Each list of
/// the catalog and each stored choice is then as before or complete, nothing is lost, and the operation can
/// be repeated. What says otherwise at its declaration, as Search::query() does, throws nothing.
struct GLYPHORIUM_EXPORT Glyphorium {
  using ComputedEntity = glyph::ComputedEntity;
  using AdditionalData = glyph::AdditionalData;
  using AdditionalDataAdvice = glyph::AdditionalDataAdvice;
  using Entity = glyph::Entity;
  using Unicode = glyph::Unicode;
  using UserInfluencedEntityKey = glyph::UserInfluencedEntityKey;

  /// Entities per group, by the exact group name. A group without entities has no key.
  using GroupCounts = std::map<std::string, std::int64_t>;

  Glyphorium();
  // Copying prints nothing. There is no move: moving from glyphorium() would silently empty it.
  Glyphorium(const Glyphorium& other);
  Glyphorium& operator=(const Glyphorium& other);
  ~Glyphorium();

  /// Code points, in hexadecimal, that selectedEntities() never shows; letter case does not count.
  std::vector<std::string> forbiddenUnicodes;

  /// The characters that the user added, in the order added; filled by configure().
  /// Every change prints one diagnostic line with the number of elements.
  Observed<std::vector<Entity>> allCustomEntities;

  /// How many entities each group has, filled by configure(); [] gives 0 for a group without entities. Every
  /// change prints one diagnostic line with the number of groups.
  Observed<GroupCounts> allEntityGroupNamesWithCount;

  /// Raised by every write of the displayed groups; the host lowers it. Every assignment prints one
  /// diagnostic line with the value.
  Observed<bool> selectedGroupsHadChanged;

  /// The entities of all configured tables, in their order, each with its enrichment; empty before
  /// configure().
  const std::vector<Entity>& buildInEntities() const { return allBuildInEntities_; }

  /// Fills the catalog from the embedded tables and the user's stored choices, and publishes
  /// selectedEntities(). May be called again at any time; each run replaces everything.
  void configure();

  /// The names of the displayed groups, in display order, asked of the settings store on every call;
  /// ["custom"] where none are stored.
  std::vector<std::string> selectedGroups() const;

  /// Stores the names, "custom" once and in front if it is among them, and raises selectedGroupsHadChanged.
  /// Names are not checked. The displayed list stays until the host calls setSelectedEntities().
  void setSelectedGroups(std::vector<std::string> groups);

  /// Changes the stored names by one read and one write, which no other process can come between.
  void modifySelectedGroups(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased name unless it is there, which changes nothing.
  void addSelectedGroup(std::string_view named);

  /// Drops the name in every letter case, and stores the list also where it held none.
  void removeSelectedGroup(std::string_view named);

  /// The hexadecimal codes (or hex lists, see CodeFormats) that the user added, in the order added.
  std::vector<std::string> customAddedEntityUnicodes() const;

  /// Stores the codes, which are not checked, and at once updates the search index (unless
  /// EntityUserData::useSpotlightExtension() is off), allCustomEntities and selectedEntities().
  void setCustomAddedEntityUnicodes(std::vector<std::string> codes);

  /// Changes the stored codes by one read and one write, with the same effects.
  void modifyCustomAddedEntityUnicodes(const std::function<void(std::vector<std::string>&)>& change);

  /// Appends the lower-cased code unless it is there, displays the group "custom", and in any case has the
  /// effects of setCustomAddedEntityUnicodes() and recounts the groups.
  void addCustomAddedEntity(std::string_view unicode);

  /// Drops the lower-cased code, with the same effects; the group "custom" stays displayed.
  void removeCustomAddedEntity(std::string_view unicode);

  /// Builds the displayed list: the entities of the selected groups (letter case does not count) without
  /// forbidden and not displayable code points, each code point once (the entity of the earlier group stays),
  /// in code-point order. Assigns it to selectedEntities(), which posts "contentHasChanged" once.
  void setSelectedEntities();

  /// The rows of a group table's JSON text, after the table repair: the rows of U+0022 and U+005C stand in
  /// `latinBasicJson` with their symbols unescaped, and are escaped before decoding. nullopt where the text
  /// does not decode, which one diagnostic line explains.
  std::optional<std::vector<ComputedEntity>> getComputedEntitiesFrom(std::string_view json) const;

  /// The rows of an enrichment table's JSON text; nullopt likewise.
  std::optional<std::vector<AdditionalData>> getAdditionalDataFrom(std::string_view json) const;

  /// An entity for each record, in their order, with the first enrichment record of its hex code (compared
  /// byte for byte), if there is one.
  std::vector<Entity> getEntitiesByEnriching(std::vector<ComputedEntity> records,
                                             const std::optional<std::vector<AdditionalData>>& with) const;

 private:
  std::vector<std::string> getBuildInEntityGroups();
  void setEntityGroupNamesWithCount();
  std::vector<Entity> getCustomEntities() const;
  std::vector<Entity> buildSelectedEntities() const;
  void changeSelectedGroups(const std::function<bool(std::vector<std::string>&)>& change);

  std::vector<std::string_view> entityData_;  // the texts of the configured group tables
  std::vector<std::string>
      notDisplayableUnicodes_;  // dropped from selectedEntities() like the forbidden ones
  Observed<std::vector<Entity>> allBuildInEntities_;
};

/// The shared catalog, created with its fixed lists on first use; that is safe from several threads at once.
GLYPHORIUM_EXPORT Glyphorium& glyphorium();

/// The entity that configure() puts at that place of buildInEntities(), decoded by itself: for programs that
/// show a few characters, the results of Search::ofCatalog() for example, and can do without the list.
/// nullopt behind the last place. Needs no catalog; any thread may call it.
GLYPHORIUM_EXPORT std::optional<Entity> buildInEntity(std::size_t place);

/// The group names in display order: "custom", the three curated groups, then the others ascending. Empty
/// until configure() fills it.
GLYPHORIUM_EXPORT std::vector<std::string>& allBuildInEntityGroups();

}  // namespace glyph
