// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/settings.h"
#include "glyphorium/state/user_defaults.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

using Codes = std::vector<std::string>;

}  // namespace

std::vector<std::string> Glyphorium::customAddedEntityUnicodes() const {
  return valueOr(loadFromUserDefaults(UserInfluencedEntityKey::customAddedEntities.rawValue(), false),
                 Codes());
}

void Glyphorium::setCustomAddedEntityUnicodes(std::vector<std::string> codes) {
  modifyCustomAddedEntityUnicodes([&codes](Codes& stored) { stored = std::move(codes); });
}

// The order matters to whoever watches: the old entities leave the index before the list is saved, the new
// ones enter it before the displayed list is published. The change is one step of the store, so that what
// another process adds at the same time is not lost.
void Glyphorium::modifyCustomAddedEntityUnicodes(
    const std::function<void(std::vector<std::string>&)>& change) {
  settingsStore()->update(UserInfluencedEntityKey::customAddedEntities.rawValue(), [&](const auto& stored) {
    Codes codes = valueOr(stored, Codes());
    change(codes);
    if (EntityUserData::useSpotlightExtension()) toolKit().removeFromSpotlight(allCustomEntities);
    return SettingValue(std::move(codes));
  });
  allCustomEntities = getCustomEntities();
  if (EntityUserData::useSpotlightExtension()) toolKit().addToSpotlight(allCustomEntities);
  setSelectedEntities();
}

void Glyphorium::addCustomAddedEntity(std::string_view unicode) {
  modifyCustomAddedEntityUnicodes([&](Codes& codes) {
    const std::string code = lowercased(unicode);
    if (std::find(codes.begin(), codes.end(), code) == codes.end()) codes.push_back(code);
    addSelectedGroup(customGroup);
  });
  setEntityGroupNamesWithCount();
}

void Glyphorium::removeCustomAddedEntity(std::string_view unicode) {
  modifyCustomAddedEntityUnicodes([&](Codes& codes) { std::erase(codes, lowercased(unicode)); });
  setEntityGroupNamesWithCount();
}

}  // namespace glyph
