// SPDX-License-Identifier: MIT
#include <algorithm>
#include <string>
#include <tuple>
#include <unordered_map>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/search_facts.h"
#include "glyphorium/search/index.h"
#include "glyphorium/text/ascii.h"

// How likely a character is meant, whatever the query: the prior of the ranking. Of characters that match
// equally people nearly always mean a common sign and hardly ever its combining, compatibility or private-use
// cousin; the order of code points knows nothing of that ("arrow" would begin with U+02C2).
namespace glyph::search {
namespace {

constexpr std::uint32_t notWanted = 0xFFFF;
constexpr unsigned mostWantedPrior = 6;
constexpr unsigned keyboardPrior = 5;

// The cost of a group. What is not listed is another script (its letters are found by its name anyway).
constexpr unsigned commonSigns = 0;
constexpr unsigned otherSigns = 4;
constexpr unsigned phonetic = 7;  // more people read a phonetic alphabet than any one other script
constexpr unsigned otherScript = 8;
constexpr unsigned modifiers = 12;
constexpr unsigned lookalikes = 16;
constexpr unsigned privateUse = 24;  // no font but its vendor's has them: see also privateUsePrior
constexpr unsigned curated = 0xFF;   // selections across the other groups say nothing of their own

constexpr std::pair<std::string_view, unsigned> groupCosts[] = {
    {"SF Symbols", privateUse},
    {"alphabetic presentation forms", lookalikes},
    {"arabic presentation forms a", lookalikes},
    {"arabic presentation forms b", lookalikes},
    {"arrows", commonSigns},
    {"block elements", commonSigns},
    {"box drawing", commonSigns},
    {"braille patterns", otherSigns},
    {"cjk compatibility", lookalikes},
    {"cjk compatibility forms", lookalikes},
    {"cjk compatibility ideographs", lookalikes},
    {"combining diacritical marks", lookalikes},
    {"combining diacritical marks for symbols", lookalikes},
    {"control pictures", otherSigns},
    {"currency symbols", commonSigns},
    {"custom", commonSigns},
    {"cyrillic", otherSigns},
    {"design inspiration", curated},
    {"digital typography (latin)", curated},
    {"dingbats", commonSigns},
    {"emoji", commonSigns},
    {"enclosed alphanumerics", otherSigns},
    {"enclosed cjk letters & months", lookalikes},
    {"geometric shapes", commonSigns},
    {"greek & coptic", commonSigns},
    {"halfwidth & fullwidth forms", lookalikes},
    {"hangul compatibility jamo", lookalikes},
    {"ipa extentions", phonetic},
    {"latin basic", commonSigns},
    {"latin extended a", otherSigns},
    {"latin extended additional", otherSigns},
    {"latin extended b", otherSigns},
    {"latin supplement", commonSigns},
    {"letterlike symbols", commonSigns},
    {"math alphanumeric symbols", lookalikes},
    {"math operators", commonSigns},
    {"misc math symbols a", otherSigns},
    {"misc math symbols b", otherSigns},
    {"misc symbols", commonSigns},
    {"misc symbols & arrows", otherSigns},
    {"misc technical", commonSigns},
    {"musical symbols", commonSigns},
    {"number forms", commonSigns},
    {"phonetic extensions", modifiers},
    {"punctuation", commonSigns},
    {"small form variants", lookalikes},
    {"spacing modifier letters", modifiers},
    {"superscripts & subscripts", commonSigns},
    {"supplemental arrows a", otherSigns},
    {"supplemental arrows b", otherSigns},
    {"supplemental math operators", otherSigns},
};

unsigned groupCost(std::string_view group) {
  const auto found =
      std::lower_bound(std::begin(groupCosts), std::end(groupCosts), group,
                       [](const auto& entry, std::string_view name) { return entry.first < name; });
  return found == std::end(groupCosts) || found->first != group ? otherScript : found->second;
}

std::uint32_t codePointOf(const std::string& hex) {
  const auto value = ascii::number(hex, 16);
  return value && *value <= 0x10FFFF ? *value : Index::noCodePoint;
}

// Places in the list of the most wanted characters, as (code point, place), ascending.
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
  unsigned group = curated;
};

std::string_view shownName(const Entity& entity) {
  const auto& additional = entity.additional;
  const bool better = additional && additional->betterName && !additional->betterName->empty();
  return better ? *additional->betterName : entity.computed.fallbackName;
}

// Smaller is likelier; at most 41, so that it never makes up for a better kind of match (see matching.cpp).
unsigned priorOf(const Candidate& candidate, std::string_view name, std::uint32_t place) {
  if (place != notWanted) return std::min(place / 60, mostWantedPrior);
  // Who has the sign on the keyboard seldom looks for it; still it is what its words mean first.
  if (candidate.codePoint < 0x80) return keyboardPrior;
  const unsigned group = candidate.group == curated ? otherSigns : candidate.group;
  const auto blanks = static_cast<unsigned>(std::count(name.begin(), name.end(), ' '));
  const unsigned capital = name.find(" Capital ") != std::string_view::npos ? 1 : 0;
  // A name of five words and more is that of a variant of something.
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
    // Rows of a group stand together, so nearly all repeats end here.
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
