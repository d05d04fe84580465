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

// For each code that this process has asked the index to add (true) or to delete (false).
using Requested = std::map<std::string, bool>;

// Makes the index agree with the stored list. Several processes may change the list at the same time, and
// their requests reach the index in any order, so each process compares again when its last request has been
// carried out. The last one to do so finds what all of them have left. Runs on the thread that calls the
// index's completions.
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

// Watchers see the effects in this order: the old entities leave the index before the list is saved, the new
// ones enter it before the displayed list is published. The settings are locked only while `change` computes
// the list, for everything else calls code of the host. `change` returns whether it has changed the list; if
// not, nothing is saved and the result is false.
bool Glyphorium::changeCustomAddedEntityUnicodes(
    const std::function<bool(std::vector<std::string>&)>& change) {
  if (EntityUserData::useSpotlightExtension()) toolKit().removeFromSpotlight(allCustomEntities);
  Requested requested;
  const bool changed = changeUserDefaults(key, Codes(), [&](Codes& codes) {
    // Removed codes count as indexed: another process may have added them once more since the request above.
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

// The host's change must not run while the settings are locked, so it gets a copy. If another process stores
// another list meanwhile, the change is made again, of that list.
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
