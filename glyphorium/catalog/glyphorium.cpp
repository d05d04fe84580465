// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"

#include <algorithm>

#include "glyphorium/catalog/fixed_lists.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/services/diagnostics/diagnostics.h"

namespace glyph {
namespace {

void printChange(const char* field, std::size_t count) {
  printDiagnostic(std::string("didSet ↘ ") + field + " '" + std::to_string(count) + "'");
}

}  // namespace

namespace catalog_observers {

void allBuildInEntitiesDidSet(const std::vector<Entity>& entities) {
  printChange("allBuildInEntities", entities.size());
}
void allCustomEntitiesDidSet(const std::vector<Entity>& entities) {
  printChange("allCustomEntities", entities.size());
}
void allEntityGroupNamesWithCountDidSet(const std::map<std::string, std::int64_t>& counts) {
  printChange("allEntityGroupNamesWithCount", counts.size());
}
void selectedGroupsHadChangedDidSet(const bool& value) {
  printDiagnostic(value ? "selectedGroupsHadChanged true" : "selectedGroupsHadChanged false");
}

}  // namespace catalog_observers

Glyphorium::Glyphorium()
    : forbiddenUnicodes(initialForbiddenUnicodes.begin(), initialForbiddenUnicodes.end()),
      notDisplayableUnicodes_(initialNotDisplayableUnicodes.begin(), initialNotDisplayableUnicodes.end()) {
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) entityData_.push_back(text.text);
  }
}

Glyphorium& Glyphorium::operator=(const Glyphorium& other) {
  Glyphorium copy(other);  // all that can fail, before anything changes
  forbiddenUnicodes.swap(copy.forbiddenUnicodes);
  allCustomEntities.assignSilently(std::move(copy.allCustomEntities));
  allEntityGroupNamesWithCount.assignSilently(std::move(copy.allEntityGroupNamesWithCount));
  selectedGroupsHadChanged.assignSilently(std::move(copy.selectedGroupsHadChanged));
  entityData_.swap(copy.entityData_);
  notDisplayableUnicodes_.swap(copy.notDisplayableUnicodes_);
  allBuildInEntities_.assignSilently(std::move(copy.allBuildInEntities_));
  return *this;
}

std::vector<std::string> Glyphorium::getBuildInEntityGroups() {
  std::vector<std::string> names;
  for (const Entity& entity : allBuildInEntities_.get()) {
    const std::string& group = entity.computed.group;
    // Rows of a group stand together, so nearly all repeats end here.
    if (names.empty() || names.back() != group) names.push_back(group);
  }
  std::sort(names.begin(), names.end());
  names.erase(std::unique(names.begin(), names.end()), names.end());
  for (const char* const first : {"emoji", "design inspiration", "digital typography (latin)"}) {
    std::erase(names, first);
    names.emplace(names.begin(), first);
  }
  names.emplace(names.begin(), customGroup);
  setEntityGroupNamesWithCount();
  return names;
}

void Glyphorium::setEntityGroupNamesWithCount() {
  GroupCounts counts;
  auto place = counts.end();
  const auto count = [&](const std::vector<Entity>& entities) {
    for (const Entity& entity : entities) {
      if (place == counts.end() || place->first != entity.computed.group) {
        place = counts.try_emplace(entity.computed.group, 0).first;
      }
      ++place->second;
    }
  };
  count(allBuildInEntities_);
  count(allCustomEntities);
  allEntityGroupNamesWithCount = std::move(counts);
}

Glyphorium& glyphorium() {
  static Glyphorium instance;
  return instance;
}

std::vector<std::string>& allBuildInEntityGroups() {
  static std::vector<std::string> groups;
  return groups;
}

}  // namespace glyph
