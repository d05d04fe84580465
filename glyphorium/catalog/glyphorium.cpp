// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"

#include <algorithm>

#include "glyphorium/catalog/fixed_lists.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

void printChange(const char* field, std::size_t count) {
  printDiagnostic(std::string("didSet ↘ ") + field + " '" + std::to_string(count) + "'");
}

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

}  // namespace

Glyphorium::Glyphorium()
    : forbiddenUnicodes(initialForbiddenUnicodes.begin(), initialForbiddenUnicodes.end()),
      allCustomEntities(&allCustomEntitiesDidSet),
      allEntityGroupNamesWithCount(&allEntityGroupNamesWithCountDidSet),
      selectedGroupsHadChanged(&selectedGroupsHadChangedDidSet),
      notDisplayableUnicodes_(initialNotDisplayableUnicodes.begin(), initialNotDisplayableUnicodes.end()),
      allBuildInEntities_(&allBuildInEntitiesDidSet) {
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) entityData_.push_back(text.text);
  }
}

Glyphorium::Glyphorium(const Glyphorium& other) : Glyphorium() {
  *this = other;
}

Glyphorium::~Glyphorium() = default;

Glyphorium& Glyphorium::operator=(const Glyphorium& other) {
  // Makes all copies first, because copying may run out of memory. The assignments below cannot fail, so the
  // catalog is never half assigned.
  auto forbidden = other.forbiddenUnicodes;
  auto custom = other.allCustomEntities.get();
  auto counts = other.allEntityGroupNamesWithCount.get();
  auto tables = other.entityData_;
  auto notDisplayable = other.notDisplayableUnicodes_;
  auto buildIn = other.allBuildInEntities_.get();
  forbiddenUnicodes = std::move(forbidden);
  allCustomEntities.assignSilently(std::move(custom));
  allEntityGroupNamesWithCount.assignSilently(std::move(counts));
  selectedGroupsHadChanged.assignSilently(other.selectedGroupsHadChanged);
  entityData_ = std::move(tables);
  notDisplayableUnicodes_ = std::move(notDisplayable);
  allBuildInEntities_.assignSilently(std::move(buildIn));
  return *this;
}

std::vector<std::string> Glyphorium::getBuildInEntityGroups() {
  std::vector<std::string> names;
  for (const Entity& entity : allBuildInEntities_) {
    const std::string_view group = entity.computed.group;
    // The rows of a group are adjacent, so this comparison removes nearly all duplicates before the sorting.
    if (names.empty() || names.back() != group) names.emplace_back(group);
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
  static NeverDestroyed<Glyphorium> instance;
  return *instance;
}

std::vector<std::string>& allBuildInEntityGroups() {
  static NeverDestroyed<std::vector<std::string>> groups;
  return *groups;
}

}  // namespace glyph
