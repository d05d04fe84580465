// SPDX-License-Identifier: MIT
#include "glyphorium/c/catalog.h"

#include "glyphorium/c/handles.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/search/resolving.h"
#include "glyphorium/services/settings/settings_store.h"
#include "glyphorium/state/desktop_search_scope.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/state/settings.h"
#include "glyphorium/text/preferred_languages.h"

using namespace glyph::c;
using glyph::glyphorium;

namespace {

// Runs `change`, which sets values in the settings store. Returns whether all values were stored.
template <class Change>
bool stored(Change change) {
  return guarded([&] {
    change();
    return succeeded(glyph::settingsStore()->synchronize());
  });
}

}  // namespace

bool glyphorium_configure(void) {
  return guarded([] {
    glyphorium().configure();
    return true;
  });
}

glyphorium_entities* glyphorium_all_entities(void) {
  return guarded([] { return handleOf(glyphorium().buildInEntities()); });
}

glyphorium_entities* glyphorium_displayed_entities(void) {
  return guarded([] { return handleOf(glyph::selectedEntities().get()); });
}

glyphorium_entities* glyphorium_custom_entities(void) {
  return guarded([] { return handleOf(glyphorium().allCustomEntities.get()); });
}

glyphorium_entities* glyphorium_resolve(const char* text, size_t size, bool* alternatives) {
  if (!text) return InvalidArgument();
  return guarded([=] {
    glyph::ResolvedText resolved = glyph::resolve(textOf(text, size));
    std::vector<glyph::Entity> entities;
    for (glyph::Character& character : resolved.characters) entities.push_back(std::move(character.front()));
    if (alternatives) *alternatives = resolved.alternatives;
    return handleOf(std::move(entities));
  });
}

glyphorium_texts* glyphorium_groups(void) {
  return guarded([] { return handleOf(glyph::allBuildInEntityGroups()); });
}

int64_t glyphorium_group_count(const char* group) {
  if (!group) return InvalidArgument();
  return guarded([=] { return glyphorium().allEntityGroupNamesWithCount[std::string(group)]; });
}

char* glyphorium_group_named(const char* name) {
  if (!name) return InvalidArgument();
  return guarded([=] { return owned(glyph::groupNamed(name)); });
}

glyphorium_texts* glyphorium_displayed_groups(void) {
  return guarded([] { return handleOf(glyphorium().selectedGroups()); });
}

bool glyphorium_set_displayed_groups(const char* const* groups, size_t count) {
  return guarded([=]() -> bool {
    auto names = textsOf(groups, count);
    if (!names) return InvalidArgument();
    return stored([&] { glyphorium().setSelectedGroups(*std::move(names)); });
  });
}

bool glyphorium_add_displayed_group(const char* group) {
  if (!group) return InvalidArgument();
  return stored([=] { glyphorium().addSelectedGroup(group); });
}

bool glyphorium_remove_displayed_group(const char* group) {
  if (!group) return InvalidArgument();
  return stored([=] { glyphorium().removeSelectedGroup(group); });
}

bool glyphorium_displayed_groups_changed(void) {
  return guarded([] { return glyphorium().selectedGroupsHadChanged.get(); });
}

void glyphorium_set_displayed_groups_changed(bool changed) {
  guarded([=] { glyphorium().selectedGroupsHadChanged = changed; });
}

bool glyphorium_rebuild_displayed(void) {
  return guarded([] {
    glyphorium().setSelectedEntities();
    return true;
  });
}

glyphorium_texts* glyphorium_forbidden_codes(void) {
  return guarded([] { return handleOf(glyphorium().forbiddenUnicodes); });
}

bool glyphorium_set_forbidden_codes(const char* const* codes, size_t count) {
  return guarded([=]() -> bool {
    auto texts = textsOf(codes, count);
    if (!texts) return InvalidArgument();
    glyphorium().forbiddenUnicodes = *std::move(texts);
    return true;
  });
}

glyphorium_texts* glyphorium_custom_codes(void) {
  return guarded([] { return handleOf(glyphorium().customAddedEntityUnicodes()); });
}

bool glyphorium_set_custom_codes(const char* const* codes, size_t count) {
  return guarded([=]() -> bool {
    auto texts = textsOf(codes, count);
    if (!texts) return InvalidArgument();
    return stored([&] { glyphorium().setCustomAddedEntityUnicodes(*std::move(texts)); });
  });
}

bool glyphorium_add_custom_codes(const char* const* codes, size_t count) {
  return guarded([=]() -> bool {
    const auto texts = textsOf(codes, count);
    if (!texts) return InvalidArgument();
    return stored([&] { glyphorium().addCustomAddedEntities(*texts); });
  });
}

bool glyphorium_remove_custom_codes(const char* const* codes, size_t count) {
  return guarded([=]() -> bool {
    const auto texts = textsOf(codes, count);
    if (!texts) return InvalidArgument();
    return stored([&] { glyphorium().removeCustomAddedEntities(*texts); });
  });
}

char* glyphorium_choices_failure(void) {
  return guarded([]() -> char* {
    for (const auto& key : glyph::UserInfluencedEntityKey::allCases()) {
      if (const auto reason = glyph::settingsStore()->readFailure(key.rawValue())) return owned(reason);
    }
    return nullptr;
  });
}

bool glyphorium_indexes_custom(void) {
  return guarded([] { return glyph::EntityUserData::useSpotlightExtension(); });
}

bool glyphorium_set_indexes_custom(bool use) {
  return stored([=] { glyph::EntityUserData::setUseSpotlightExtension(use); });
}

bool glyphorium_desktop_searches_catalog(void) {
  return guarded([] { return glyph::desktopSearchesCatalog(); });
}

bool glyphorium_set_desktop_searches_catalog(bool whole_catalog) {
  return guarded([=] { return succeeded(glyph::setDesktopSearchesCatalog(whole_catalog)); });
}

glyphorium_texts* glyphorium_languages(void) {
  return guarded([] { return handleOf(glyph::preferredLanguages()); });
}

bool glyphorium_set_languages(const char* const* languages, size_t count) {
  return guarded([=]() -> bool {
    auto texts = textsOf(languages, count);
    if (!texts) return InvalidArgument();
    if (!languages) texts.reset();
    glyph::setPreferredLanguages(std::move(texts));
    return true;
  });
}

size_t glyphorium_embedded_text_count(void) {
  return glyph::embeddedTexts().size();
}

glyphorium_text glyphorium_embedded_text_name(size_t index) {
  if (index >= glyph::embeddedTexts().size()) return InvalidArgument();
  return borrowed(glyph::embeddedTexts()[index].constant);
}

glyphorium_text glyphorium_embedded_text(const char* name) {
  if (!name) return InvalidArgument();
  const glyph::EmbeddedText* const found = glyph::embeddedText(name);
  return found ? borrowed(found->text) : glyphorium_text{nullptr, 0};
}
