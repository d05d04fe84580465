// SPDX-License-Identifier: MIT
#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/state/user_defaults.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

// Returns the rank of each group, indexed by its lower-cased name. A group that is earlier in the stored list
// has a lower rank.
std::unordered_map<std::string, std::size_t> ranksOf(const std::vector<std::string>& groups) {
  std::unordered_map<std::string, std::size_t> ranks;
  for (const std::string& group : groups) ranks.try_emplace(lowercased(group), ranks.size());
  return ranks;
}

struct Candidate {
  const Entity* entity;
  std::size_t rank;
};

}  // namespace

// Makes one pass over the catalog instead of one pass for each displayed group. If two entities have the same
// hex code, the entity whose group is earlier in the stored list is kept. Within one group, the earlier
// entity is kept.
std::vector<Entity> Glyphorium::buildSelectedEntities() const {
  const std::vector<Entity>& buildIn = allBuildInEntities_;
  const std::vector<Entity>& custom = allCustomEntities;
  if (buildIn.empty() && custom.empty()) return {};
  const auto ranks = ranksOf(storedDisplayedGroups());
  std::unordered_set<std::string> forbidden;  // lower-cased; compared with the lower-cased hex code
  for (const std::string& hex : forbiddenUnicodes) forbidden.insert(lowercased(hex));
  std::unordered_set<std::string> notDisplayable;  // lower-cased; compared with the hex code as stored
  for (const std::string& hex : notDisplayableUnicodes_) notDisplayable.insert(lowercased(hex));

  std::vector<Candidate> candidates;
  candidates.reserve(buildIn.size() + custom.size());
  std::unordered_map<std::string_view, std::size_t> placeOfHex;
  placeOfHex.reserve(buildIn.size() + custom.size());
  const RecordText* group = nullptr;  // the group of the previous entity; the rows of a group are adjacent
  auto rank = ranks.end();
  for (const auto* list : {&buildIn, &custom}) {
    for (const Entity& entity : *list) {
      const ComputedEntity& record = entity.computed;
      if (!group || record.group != *group) {
        group = &record.group;
        rank = ranks.find(lowercased(record.group));
      }
      if (rank == ranks.end() || forbidden.contains(lowercased(record.hex)) ||
          notDisplayable.contains(record.hex)) {
        continue;
      }
      const auto [place, isNew] = placeOfHex.try_emplace(record.hex, candidates.size());
      if (isNew) {
        candidates.push_back({&entity, rank->second});
      } else if (rank->second < candidates[place->second].rank) {
        candidates[place->second] = {&entity, rank->second};
      }
    }
  }
  // A stable sort keeps different spellings of the same number ("0041", "00041") in the order of the catalog.
  std::stable_sort(candidates.begin(), candidates.end(), [](const Candidate& a, const Candidate& b) {
    return a.entity->computed.decimal < b.entity->computed.decimal;
  });
  std::vector<Entity> selected;
  selected.reserve(candidates.size());
  for (const Candidate& candidate : candidates) selected.push_back(*candidate.entity);
  return selected;
}

void Glyphorium::setSelectedEntities() {
  glyph::selectedEntities() = buildSelectedEntities();
}

}  // namespace glyph
