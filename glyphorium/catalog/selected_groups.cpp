// SPDX-License-Identifier: MIT
#include <algorithm>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/user_defaults.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

using Names = std::vector<std::string>;

// If the list contains "custom", moves this name to the beginning and removes its duplicates.
Names normalised(Names groups) {
  if (std::erase(groups, customGroup) > 0) groups.emplace(groups.begin(), customGroup);
  return groups;
}

}  // namespace

std::vector<std::string> Glyphorium::selectedGroups() const {
  return storedDisplayedGroups();
}

void Glyphorium::setSelectedGroups(std::vector<std::string> groups) {
  saveToUserDefaults(normalised(std::move(groups)), UserInfluencedEntityKey::displayedGroups.rawValue(),
                     false);
  selectedGroupsHadChanged = true;
}

void Glyphorium::modifySelectedGroups(const std::function<void(std::vector<std::string>&)>& change) {
  changeSelectedGroups([&](Names& groups) {
    change(groups);
    return true;
  });
}

// Reads the list, calls `change` and stores the changed list in one step. If `change` returns false, the
// stored list stays unchanged.
void Glyphorium::changeSelectedGroups(const std::function<bool(std::vector<std::string>&)>& change) {
  const bool changed = changeUserDefaults(UserInfluencedEntityKey::displayedGroups.rawValue(),
                                          Names{std::string(customGroup)}, [&](Names& groups) {
                                            const bool result = change(groups);
                                            if (result) groups = normalised(std::move(groups));
                                            return result;
                                          });
  if (changed) selectedGroupsHadChanged = true;
}

void Glyphorium::addSelectedGroup(std::string_view named) {
  changeSelectedGroups([name = lowercased(named)](Names& groups) {
    if (std::find(groups.begin(), groups.end(), name) != groups.end()) return false;
    groups.push_back(name);
    return true;
  });
}

void Glyphorium::removeSelectedGroup(std::string_view named) {
  changeSelectedGroups([name = lowercased(named)](Names& groups) {
    std::erase_if(groups, [&](const std::string& group) { return lowercased(group) == name; });
    return true;
  });
}

}  // namespace glyph
