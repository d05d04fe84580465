// SPDX-License-Identifier: MIT
#include <map>
#include <unordered_set>

#include "glyphorium/catalog/custom_entities.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/settings.h"
#include "glyphorium/state/user_defaults.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace glyph {
namespace {

using Codes = std::vector<std::string>;

constexpr std::string_view key = UserInfluencedEntityKey::customAddedEntities.rawValue();

// The codes for which this process has sent requests to the index. The value is true if the last request
// added the item, and false if it deleted the item.
using Requested = std::map<std::string, bool>;

// Updates the index so that it matches the stored list. Several processes may change the list at the same
// time, and their requests may reach the index in any order. Therefore each process compares its requests
// with the stored list again after its last request is done. The process whose requests end last sees the
// final list. Runs on the thread that calls the completions of the index.
void reconcileIndex(Requested requested) {
  if (!EntityUserData::useSpotlightExtension()) return;
  const Codes stored = storedCustomCodes();
  const std::unordered_set<std::string_view> wanted(stored.begin(), stored.end());
  Codes superfluous, missing;
  for (auto& [code, indexed] : requested) {
    if (indexed == wanted.contains(code)) continue;
    (indexed ? superfluous : missing).push_back(code);
    indexed = !indexed;
  }
  if (superfluous.empty() && missing.empty()) return;
  const auto again = [requested = std::move(requested)](const std::optional<std::string>& error) {
    if (!error) reconcileIndex(requested);
  };
  if (missing.empty()) {
    searchableIndex()->deleteItems(std::move(superfluous), again);
    return;
  }
  searchableIndex()->deleteItems(std::move(superfluous), {});
  toolKit().addToSpotlight(customEntities(missing), again);
}

}  // namespace

std::vector<std::string> Glyphorium::customAddedEntityUnicodes() const {
  return storedCustomCodes();
}

// Observers can see the order of the effects, so it is fixed: the old entities leave the index before the
// list is saved, and the new entities enter the index before the displayed list is published. The settings
// are locked only while `change` computes the list, because all other steps call code of the host. `change`
// returns true if it has changed the list. Otherwise the list is not saved, and this function returns false.
bool Glyphorium::changeCustomAddedEntityUnicodes(
    const std::function<bool(std::vector<std::string>&)>& change) {
  if (EntityUserData::useSpotlightExtension()) toolKit().removeFromSpotlight(allCustomEntities);
  Requested requested;
  const bool changed = changeUserDefaults(key, Codes(), [&](Codes& codes) {
    // Treat the items of the stored codes as still in the index: another process may have added them again
    // after the deletion above.
    for (const std::string& code : codes) requested[code] = true;
    return change(codes);
  });
  if (!changed) return false;
  allCustomEntities = getCustomEntities();
  if (EntityUserData::useSpotlightExtension()) {
    for (const Entity& entity : *allCustomEntities) requested[entity.computed.hex] = true;
    toolKit().addToSpotlight(allCustomEntities, [requested](const std::optional<std::string>& error) {
      if (!error) reconcileIndex(requested);
    });
  }
  setSelectedEntities();
  return true;
}

void Glyphorium::setCustomAddedEntityUnicodes(std::vector<std::string> codes) {
  changeCustomAddedEntityUnicodes([&codes](Codes& stored) {
    stored = std::move(codes);
    return true;
  });
}

// The host's function must not run while the settings are locked, so it works on a copy. If another process
// stores a different list in the meantime, the function is called again with that list.
void Glyphorium::modifyCustomAddedEntityUnicodes(
    const std::function<void(std::vector<std::string>&)>& change) {
  for (bool done = false; !done;) {
    const Codes before = storedCustomCodes();
    Codes after = before;
    change(after);
    done = changeCustomAddedEntityUnicodes([&](Codes& stored) {
      if (stored != before) return false;
      stored = std::move(after);
      return true;
    });
  }
}

void Glyphorium::addCustomAddedEntity(std::string_view unicode) {
  addCustomAddedEntities({std::string(unicode)});
}

void Glyphorium::addCustomAddedEntities(const std::vector<std::string>& unicodes) {
  if (unicodes.empty()) return;
  addSelectedGroup(customGroup);
  changeCustomAddedEntityUnicodes([&](Codes& codes) {
    std::unordered_set<std::string> known(codes.begin(), codes.end());
    for (const std::string& unicode : unicodes) {
      std::string code = lowercased(unicode);
      if (known.insert(code).second) codes.push_back(std::move(code));
    }
    return true;
  });
  setEntityGroupNamesWithCount();
}

void Glyphorium::removeCustomAddedEntity(std::string_view unicode) {
  removeCustomAddedEntities({std::string(unicode)});
}

void Glyphorium::removeCustomAddedEntities(const std::vector<std::string>& unicodes) {
  if (unicodes.empty()) return;
  std::unordered_set<std::string> removed;
  for (const std::string& unicode : unicodes) removed.insert(lowercased(unicode));
  changeCustomAddedEntityUnicodes([&](Codes& codes) {
    std::erase_if(codes, [&](const std::string& code) { return removed.contains(code); });
    return true;
  });
  setEntityGroupNamesWithCount();
}

}  // namespace glyph
