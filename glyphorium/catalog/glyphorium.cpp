// SPDX-License-Identifier: MIT
#include "glyphorium/catalog/glyphorium.h"

#include <algorithm>

#include "glyphorium/catalog/fixed_lists.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/entity/prepared_entities.h"
#include "glyphorium/services/diagnostics/diagnostics.h"
#include "glyphorium/text/never_destroyed.h"

namespace glyph {
namespace {

void printChange(const char* field, std::size_t count) {
  printDiagnostic(std::string("didSet ↘ ") + field + " '" + std::to_string(count) + "'");
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
      selectedGroupsHadChanged(&selectedGroupsHadChangedDidSet) {}

Glyphorium::Glyphorium(const Glyphorium& other) : Glyphorium() {
  *this = other;
}

Glyphorium::~Glyphorium() = default;

Glyphorium& Glyphorium::operator=(const Glyphorium& other) {
  // Makes all copies first, because copying may run out of memory. The assignments after that cannot fail,
  // so the catalog is never partly assigned.
  auto forbidden = other.forbiddenUnicodes;
  auto custom = other.allCustomEntities.get();
  auto counts = other.allEntityGroupNamesWithCount.get();
  forbiddenUnicodes = std::move(forbidden);
  allCustomEntities.assignSilently(std::move(custom));
  allEntityGroupNamesWithCount.assignSilently(std::move(counts));
  selectedGroupsHadChanged.assignSilently(other.selectedGroupsHadChanged);
  isConfigured_ = other.isConfigured_;
  return *this;
}

void Glyphorium::configure() {
  preparedEntities();  // creates the list first: if memory runs out here, nothing has changed yet
  isConfigured_ = true;
  printChange("allBuildInEntities", buildInEntities().size());
  allCustomEntities = getCustomEntities();
  allBuildInEntityGroups() = getBuildInEntityGroups();
  setSelectedEntities();
}

const std::vector<Entity>& Glyphorium::buildInEntities() const {
  static NeverDestroyed<const std::vector<Entity>> none;
  return isConfigured_ ? preparedEntities() : *none;
}

std::vector<std::string> Glyphorium::getBuildInEntityGroups() {
  std::vector<std::string> names;
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) names.emplace_back(text.group);
  }
  std::sort(names.begin(), names.end());
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
  for (const EmbeddedText& text : embeddedTexts()) {
    if (isConfigured_ && text.configured)
      counts[std::string(text.group)] += static_cast<std::int64_t>(text.rows);
  }
  auto place = counts.end();
  for (const Entity& entity : allCustomEntities) {
    if (place == counts.end() || place->first != entity.computed.group) {
      place = counts.try_emplace(entity.computed.group, 0).first;
    }
    ++place->second;
  }
  allEntityGroupNamesWithCount = std::move(counts);
}

std::optional<Entity> buildInEntity(std::size_t place) {
  return preparedEntity(place);
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
