// SPDX-License-Identifier: MIT
#include "character_search.h"

#include <algorithm>
#include <climits>
#include <unordered_set>

#include "character_text.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/unicode_text.h"

namespace provider {
namespace {

using glyph::SearchableItem;
using std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr std::string_view scope = "qv:";
constexpr std::string_view blanks = " \t\n\v\f\r";

// Nobody types more. The index would split and sort every word of it while others wait.
constexpr std::size_t longestQuery = 1000;

std::string_view trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

// Of the catalog's ranked characters so many are looked up in the index, which may hold but a few of them.
constexpr std::size_t mostLookUps = 200;
constexpr std::size_t mostMisses = 60;

Exactness exactnessOf(const SearchableItem& item, std::string_view lowered) {
  if (lowered.empty()) return Exactness::part;
  if (glyph::lowercased(symbolOf(item)) == lowered || item.uniqueIdentifier == lowered)
    return Exactness::code;
  // The index keeps the keywords in lower case, names in HTML among them.
  const std::string reference = "&" + std::string(lowered) + ";";
  const bool named = glyph::lowercased(nameOf(item)) == lowered ||
                     std::count(item.keywords.begin(), item.keywords.end(), reference) > 0;
  return named ? Exactness::name : Exactness::part;
}

}  // namespace

bool isScoped(std::string_view query) {
  return glyph::lowercased(trimmed(query).substr(0, scope.size())) == scope;
}

// An index that another program holds locked costs the reader's whole patience. Those who asked meanwhile
// are not made to wait as long again, one after the other: desktops ask at every key.
template <class Answer, class Question>
Answer CharacterSearch::ask(Question question) {
  const auto begin = steady_clock::now();
  if (begin < closedUntil_) return {};
  Answer answer = question();
  const auto end = steady_clock::now();
  if (answer == Answer{} && end - begin > 400ms) closedUntil_ = end + 1s;
  return answer;
}

std::optional<SearchableItem> CharacterSearch::item(std::string_view identifier) {
  return ask<std::optional<SearchableItem>>([&] { return reader_.item(identifier); });
}

std::vector<Found> CharacterSearch::find(std::string_view query, std::size_t limit) {
  if (query.size() > longestQuery) return {};
  std::string_view wanted = trimmed(query);
  if (isScoped(wanted)) wanted = trimmed(wanted.substr(scope.size()));
  const std::string lowered = glyph::lowercased(wanted);

  std::vector<Found> found;
  std::unordered_set<std::string> seen;
  const auto add = [&](SearchableItem one, Exactness exactness) {
    if (seen.insert(one.uniqueIdentifier).second) found.push_back({std::move(one), exactness});
  };
  std::size_t misses = 0;
  for (const glyph::SearchResult& result :
       glyph::Search::ofCatalog().query(wanted, {mostLookUps, std::nullopt, {}}).results) {
    if (found.size() == limit || misses == mostMisses) break;
    auto one = item(glyph::buildInEntity(result.index)->computed.hex);
    if (!one) {
      ++misses;
      continue;
    }
    const bool direct =
        result.field == glyph::SearchField::code || result.field == glyph::SearchField::character;
    const Exactness exactness = exactnessOf(*one, lowered);
    add(*std::move(one), direct ? Exactness::code : exactness);
  }
  const int most = static_cast<int>(std::min<std::size_t>(limit, INT_MAX));
  const auto indexed = ask<std::vector<SearchableItem>>([&] { return reader_.search(query, most); });
  for (const SearchableItem& one : indexed) add(one, exactnessOf(one, lowered));
  std::stable_sort(found.begin(), found.end(),
                   [](const Found& a, const Found& b) { return a.exactness < b.exactness; });
  if (found.size() > limit) found.resize(limit);
  return found;
}

}  // namespace provider
