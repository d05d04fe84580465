// SPDX-License-Identifier: MIT
#include "glyphorium/search/static_rank.h"

#include <algorithm>
#include <string>
#include <tuple>
#include <unordered_map>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index.h"
#include "glyphorium/text/ascii.h"

namespace glyph::search {
namespace {

constexpr std::uint32_t notWanted = 0xFFFF;
constexpr unsigned keyboardPrior = 5;

constexpr unsigned noGroup = 0xFF;  // larger than the cost of every group

unsigned groupCost(GroupKind kind) {
  switch (kind) {
    case GroupKind::commonSigns:
      return 0;
    case GroupKind::otherSigns:
      return 4;
    case GroupKind::phonetic:  // more people read a phonetic alphabet than any other single script
      return 7;
    case GroupKind::script:  // a query with the name of the script finds its letters anyway
      return 8;
    case GroupKind::modifiers:
      return 12;
    case GroupKind::lookalikes:
      return 16;
    case GroupKind::privateUse:  // only one vendor's fonts have these characters; see also privateUsePrior
      return 24;
    case GroupKind::selection:
      break;
  }
  return noGroup;
}

// Returns the cost of the group with this name. A group that is not in groupKinds counts as a script.
unsigned groupCost(std::string_view name) {
  // The group "custom" has the characters that the user added. The user is likely to search for these.
  if (name == customGroup) return groupCost(GroupKind::commonSigns);
  const auto found = std::lower_bound(
      groupKinds.begin(), groupKinds.end(), name,
      [](const GroupWithKind& entry, std::string_view other) { return entry.group < other; });
  return groupCost(found == groupKinds.end() || found->group != name ? GroupKind::script : found->kind);
}

std::uint32_t codePointOf(std::string_view hex) {
  const auto value = ascii::number(hex, 16);
  return value && *value <= 0x10FFFF ? *value : Index::noCodePoint;
}

// Returns the most wanted characters as pairs (code point, position in the list of the most wanted
// characters), in ascending order.
std::vector<std::pair<std::uint32_t, std::uint32_t>> mostWanted() {
  std::vector<std::pair<std::uint32_t, std::uint32_t>> places;
  for (std::size_t list = 0; list < searchFactCount; ++list) {
    const SearchFacts& facts = searchFactList[list];
    if (facts.kind != SearchFactKind::mostWanted) continue;
    for (std::size_t i = 0; i < facts.size(); ++i) {
      const SearchFacts::Entry entry = facts[i];
      places.emplace_back(entry.codePoint, ascii::number(entry.texts, 10).value_or(notWanted));
    }
  }
  return places;
}

struct Candidate {
  std::uint32_t entity;
  std::uint32_t codePoint;
  unsigned group = noGroup;  // the lowest cost of the character's groups
};

std::string_view shownName(const Entity& entity) {
  const auto& additional = entity.additional;
  const bool better = additional && additional->betterName && !additional->betterName->empty();
  return better ? *additional->betterName : entity.computed.fallbackName;
}

// Returns the prior of a character. `place` is its position in the list of the most wanted characters, or
// notWanted. The prior is at most 41, so that it decides only between matches that are about equally good
// (see score.h).
unsigned priorOf(const Candidate& candidate, std::string_view name, std::uint32_t place) {
  if (place != notWanted) return std::min<unsigned>(place / 60, mostWantedPrior);
  // People seldom search for a sign that is on the keyboard. But if they type words of its name, they most
  // likely mean this sign.
  if (candidate.codePoint < 0x80) return keyboardPrior;
  const unsigned group = candidate.group == noGroup ? groupCost(GroupKind::otherSigns) : candidate.group;
  const auto blanks = static_cast<unsigned>(std::count(name.begin(), name.end(), ' '));
  const unsigned capital = name.find(" Capital ") != std::string_view::npos ? 1 : 0;
  // A character whose name has five words or more is usually a variant of another character.
  return 10 + group + capital + std::min(blanks > 3 ? blanks - 3 : 0u, 6u);
}

}  // namespace

RankedDocs rankDocs(std::span<const Entity> entities) {
  RankedDocs result;
  std::vector<Candidate> candidates;
  candidates.reserve(entities.size());
  std::unordered_map<std::string_view, std::uint32_t> candidateOfHex(entities.size());
  std::unordered_map<std::string_view, std::uint32_t> groupOfName;
  for (std::size_t i = 0; i < entities.size(); ++i) {
    const ComputedEntity& record = entities[i].computed;
    const auto [known, isNew] =
        candidateOfHex.try_emplace(record.hex, static_cast<std::uint32_t>(candidates.size()));
    if (isNew) candidates.push_back({static_cast<std::uint32_t>(i), codePointOf(record.hex)});
    Candidate& candidate = candidates[known->second];
    candidate.group = std::min(candidate.group, groupCost(record.group));
    // The entities of a group are consecutive in the list, so the group rarely differs from that of the
    // entity before.
    if (result.groups.empty() || result.groups.back().name != record.group) {
      const auto [group, isNewGroup] =
          groupOfName.try_emplace(record.group, static_cast<std::uint32_t>(result.groups.size()));
      if (isNewGroup) {
        result.groups.push_back({record.group, {}});
      } else {
        result.groups[group->second].entities.push_back(candidate.entity);
        continue;
      }
    }
    result.groups.back().entities.push_back(candidate.entity);
  }

  const auto places = mostWanted();
  using Order = std::tuple<unsigned, std::uint32_t, std::size_t, std::uint32_t, std::uint32_t>;
  std::vector<std::pair<Order, std::uint32_t>> order;
  order.reserve(candidates.size());
  for (const Candidate& candidate : candidates) {
    const auto place = std::lower_bound(places.begin(), places.end(), std::pair{candidate.codePoint, 0u});
    const std::uint32_t wanted =
        place != places.end() && place->first == candidate.codePoint ? place->second : notWanted;
    const std::string_view name = shownName(entities[candidate.entity]);
    order.push_back(
        {{priorOf(candidate, name, wanted), wanted, name.size(), candidate.codePoint, candidate.entity},
         static_cast<std::uint32_t>(order.size())});
  }
  std::sort(order.begin(), order.end());
  result.docs.reserve(order.size());
  for (const auto& [key, i] : order) {
    result.docs.push_back(
        {candidates[i].entity, candidates[i].codePoint, static_cast<std::uint8_t>(std::get<0>(key))});
  }
  return result;
}

}  // namespace glyph::search
