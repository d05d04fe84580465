// SPDX-License-Identifier: MIT
#include <algorithm>
#include <unordered_map>
#include <unordered_set>

#include "glyphorium/catalog/fixed_lists.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/codes/code_formats.h"
#include "glyphorium/data/embedded_texts.h"
#include "glyphorium/data/prepared_rows.h"
#include "glyphorium/entity/entity_list.h"
#include "glyphorium/state/selected_entities.h"
#include "glyphorium/state/user_defaults.h"
#include "glyphorium/text/ascii.h"
#include "glyphorium/text/unicode_text.h"

namespace glyph {
namespace {

using Rank = std::uint32_t;
constexpr Rank notDisplayed = UINT32_MAX;

// The rank of each displayed group. A group that is earlier in the stored list has a lower rank.
class Ranks {
 public:
  explicit Ranks(const std::vector<std::string>& groups) {
    for (const std::string& group : groups)
      ranks_.try_emplace(lowercased(group), static_cast<Rank>(ranks_.size()));
  }
  Rank of(std::string_view group) const {
    const auto found = ranks_.find(lowercased(group));
    return found == ranks_.end() ? notDisplayed : found->second;
  }

 private:
  std::unordered_map<std::string, Rank> ranks_;
};

struct Candidate {
  const Entity* entity;
  Rank rank;
  std::uint32_t codePoint;  // valid only if the entity comes from a table
};

bool before(const Candidate& a, const Candidate& b) {
  return a.entity->computed.decimal < b.entity->computed.decimal;
}

std::unordered_set<std::string> forbiddenCodes(const std::vector<std::string>& forbiddenUnicodes) {
  std::unordered_set<std::string> codes;
  for (const std::string& hex : forbiddenUnicodes) codes.insert(lowercased(hex));
  return codes;
}

// Returns the code points that are never shown, in ascending order. A text that is not the hex code of a code
// point is left out, because no entity of the tables has such a hex code.
std::vector<std::uint32_t> hiddenCodePoints(const std::unordered_set<std::string>& forbidden) {
  std::vector<std::uint32_t> hidden;
  const auto hide = [&](std::string_view hex) {
    const auto codePoint = ascii::number(hex, 16);
    if (codePoint && CodeFormats().getHex(*codePoint) == hex) hidden.push_back(*codePoint);
  };
  for (const std::string& hex : forbidden) hide(hex);
  for (const char* const hex : initialNotDisplayableUnicodes) hide(hex);
  std::sort(hidden.begin(), hidden.end());
  return hidden;
}

// Returns the displayed entities of the tables in code-point order. No texts are compared: the build has
// sorted the rows, and all rows of a table have the same group.
std::vector<Candidate> tableCandidates(const std::vector<Entity>& entities, const Ranks& ranks,
                                       const std::unordered_set<std::string>& forbidden) {
  std::vector<Rank> rankOfTable;
  for (const EmbeddedText& text : embeddedTexts()) {
    if (text.configured) rankOfTable.push_back(ranks.of(text.group));
  }
  const std::vector<std::uint32_t> hidden = hiddenCodePoints(forbidden);
  auto nextHidden = hidden.begin();
  std::vector<Candidate> candidates;
  if (std::ranges::all_of(rankOfTable, [](Rank rank) { return rank == notDisplayed; })) return candidates;
  candidates.reserve(entities.size());
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const std::size_t place = placeInCodePointOrder(i);
    const PreparedRow row = preparedRow(place);
    const Rank rank = rankOfTable[row.table];
    if (rank == notDisplayed) continue;
    const std::uint32_t codePoint = row.codePoint;
    while (nextHidden != hidden.end() && *nextHidden < codePoint) ++nextHidden;
    if (nextHidden != hidden.end() && *nextHidden == codePoint) continue;
    const Candidate candidate{&entities[place], rank, codePoint};
    if (candidates.empty() || candidates.back().codePoint != codePoint) {
      candidates.push_back(candidate);
    } else if (rank < candidates.back().rank) {
      candidates.back() = candidate;
    }
  }
  return candidates;
}

// Adds the custom entities to the candidates of the tables. A host may put any entities into the list of
// custom entities, so their texts must be compared.
void addCustomCandidates(const std::vector<Entity>& entities, const Ranks& ranks,
                         const std::unordered_set<std::string>& forbidden,
                         std::vector<Candidate>& candidates) {
  const std::unordered_set<std::string_view> notDisplayable(initialNotDisplayableUnicodes.begin(),
                                                            initialNotDisplayableUnicodes.end());
  const std::size_t ofTables = candidates.size();
  std::unordered_map<std::string_view, std::size_t> added;  // the indexes of the candidates added here
  const auto placeOf = [&](std::string_view hex) {
    const std::uint32_t codePoint = ascii::number(hex, 16).value_or(UINT32_MAX);
    const auto end = candidates.begin() + static_cast<std::ptrdiff_t>(ofTables);
    const auto found = std::lower_bound(candidates.begin(), end, codePoint,
                                        [](const Candidate& a, std::uint32_t b) { return a.codePoint < b; });
    if (found != end && found->entity->computed.hex == hex)
      return static_cast<std::size_t>(found - candidates.begin());
    return added.try_emplace(hex, candidates.size()).first->second;
  };
  const RecordText* group = nullptr;  // the group of the previous entity; most entities have the same group
  Rank rank = notDisplayed;
  for (const Entity& entity : entities) {
    const ComputedEntity& record = entity.computed;
    if (!group || record.group != *group) {
      group = &record.group;
      rank = ranks.of(record.group);
    }
    if (rank == notDisplayed || forbidden.contains(lowercased(record.hex)) ||
        notDisplayable.contains(record.hex))
      continue;
    const std::size_t place = placeOf(record.hex);
    if (place == candidates.size()) {
      candidates.push_back({&entity, rank, 0});
    } else if (rank < candidates[place].rank) {
      candidates[place].entity = &entity;
      candidates[place].rank = rank;
    }
  }
  // Entities with different spellings of the same number ("0041", "00041") keep the order of the catalog,
  // because the sort is stable.
  const auto middle = candidates.begin() + static_cast<std::ptrdiff_t>(ofTables);
  // The entities of the tables are sorted already, unless a custom entity with another number has replaced
  // one of them.
  if (!std::is_sorted(candidates.begin(), middle, before))
    std::stable_sort(candidates.begin(), middle, before);
  std::stable_sort(middle, candidates.end(), before);
  std::inplace_merge(candidates.begin(), middle, candidates.end(), before);
}

}  // namespace

// If two entities have the same hex code, the entity whose group is earlier in the stored list is kept.
// Within one group, the earlier entity is kept.
std::vector<Entity> Glyphorium::buildSelectedEntities() const {
  const std::vector<Entity>& buildIn = buildInEntities();
  if (buildIn.empty() && allCustomEntities.empty()) return {};
  const Ranks ranks(storedDisplayedGroups());
  const std::unordered_set<std::string> forbidden = forbiddenCodes(forbiddenUnicodes);
  std::vector<Candidate> candidates = tableCandidates(buildIn, ranks, forbidden);
  if (!allCustomEntities.empty()) addCustomCandidates(allCustomEntities, ranks, forbidden, candidates);
  std::vector<Entity> selected = entityListFor(candidates.size());
  for (const Candidate& candidate : candidates) selected.push_back(*candidate.entity);
  return selected;
}

void Glyphorium::setSelectedEntities() {
  glyph::selectedEntities() = buildSelectedEntities();
}

}  // namespace glyph
