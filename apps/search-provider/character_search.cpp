// SPDX-License-Identifier: MIT
#include "character_search.h"

#include <sys/stat.h>

#include <algorithm>
#include <unordered_set>

#include "character_text.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/services/application/application.h"
#include "glyphorium/services/settings/settings_store.h"
#include "glyphorium/state/desktop_search_scope.h"
#include "glyphorium/state/settings_keys.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"

namespace provider {
namespace {

using glyph::Entity;
using glyph::SearchField;
using glyph::SearchResult;

constexpr std::string_view scope = "qv:";

// The maximum length of a query in bytes. No one types a longer query, and splitting and sorting its words
// would delay the answers to other callers.
constexpr std::size_t longestQuery = 1000;

// If the user has excluded the catalog from the search, characters that the catalog finds are shown only if
// they are also in a host's index. This is the maximum number of characters that are looked up in the
// indexes.
constexpr std::size_t mostLookUps = 200;

// The minimum number of letters in a query. Fewer letters are the beginning of too many words.
constexpr std::size_t fewestLetters = 3;

// Maximum number of results for an everyday word. Only the best characters are shown, because the user may
// not be looking for a character at all.
constexpr std::size_t mostByWord = 3;

std::string_view withoutScope(std::string_view query) {
  const std::string_view wanted = glyph::trimmed(query);
  return isScoped(wanted) ? glyph::trimmed(wanted.substr(scope.size())) : wanted;
}

// Whether the text is certainly a code, such as "U+2192", "&rarr;" or "\u2192". A text that could also be a
// number, a word or a file name does not count.
bool isFullCode(std::string_view text) {
  const std::u32string points = glyph::codePoints(text);
  const bool marked = !points.empty() && !glyph::isAlphanumeric(points.front());
  const bool plus = text.starts_with("U+") || text.starts_with("u+");
  return (marked || plus) && !glyph::parseCodes(text).empty();
}

// Whether the text is a single character outside ASCII. ASCII characters have their own keys on the keyboard,
// so users do not search for them.
bool isPastedCharacter(std::string_view text) {
  return !text.empty() && static_cast<unsigned char>(text.front()) >= 0x80 &&
         glyph::graphemeClusters(text).size() == 1;
}

// Whether the text consists of at least `fewestLetters` letters and of nothing else except spaces, hyphens,
// apostrophes and marks. Calculations, addresses and file names contain other characters.
bool isWords(std::string_view text) {
  const std::u32string points = glyph::codePoints(text);
  const auto letters = std::count_if(points.begin(), points.end(), [](char32_t c) {
    return glyph::isAlphanumeric(c) && (c < '0' || c > '9');
  });
  const auto joints = std::count_if(points.begin(), points.end(), [](char32_t c) {
    return c == ' ' || c == '-' || c == '\'' || c == U'’' || glyph::isCombining(c);
  });
  return static_cast<std::size_t>(letters) >= fewestLetters &&
         static_cast<std::size_t>(letters + joints) == points.size();
}

// A query without its prefix "qv:", and values that are computed from the query.
struct Wanted {
  explicit Wanted(std::string_view query)
      : text(withoutScope(query)), lowered(glyph::lowercased(text)), fullCode(isFullCode(text)) {}

  std::string_view text;
  std::string lowered;
  bool fullCode;
};

Exactness exactnessOf(const Wanted& wanted, const Entity& entity, const SearchResult& result) {
  if (!result.exact) return Exactness::part;
  const bool direct = result.field == SearchField::code || result.field == SearchField::character;
  if (direct || wanted.fullCode) return Exactness::code;
  if (glyph::lowercased(entity.name()) == wanted.lowered) return Exactness::name;
  // An HTML name without "&" and ";" is often an ordinary word or the beginning of a word: "int", "top".
  return result.field == SearchField::htmlName ? Exactness::part : Exactness::word;
}

// Returns how exactly the query matches a character that is in a host's search index but not in the catalog.
Exactness exactnessOf(const Wanted& wanted, const Entity& entity) {
  if (wanted.text.empty()) return Exactness::part;
  if (entity.computed.symbol == wanted.text || entity.computed.hex == wanted.lowered) return Exactness::code;
  return glyph::lowercased(entity.name()) == wanted.lowered ? Exactness::name : Exactness::part;
}

bool isPrivateUse(const Entity& entity) {
  const std::u32string points = glyph::codePoints(entity.computed.symbol);
  return points.size() == 1 && ((points[0] >= 0xE000 && points[0] <= 0xF8FF) || points[0] >= 0xF0000);
}

// Returns a text that changes whenever the settings files change.
std::string settingsState() {
  std::string state;
  const auto directory = glyph::applicationConfigDirectory();
  if (!directory) return state;
  for (const char* const name : {"settings.sqlite", "settings.sqlite-wal"}) {
    struct stat status {};
    if (stat((*directory / name).c_str(), &status) == 0) {
      for (const auto number : {static_cast<long>(status.st_ino), static_cast<long>(status.st_size),
                                status.st_mtim.tv_sec, status.st_mtim.tv_nsec})
        state += std::to_string(number) + " ";
    }
    state += ";";
  }
  return state;
}

// Decides whether to show a character that is not in the catalog. Emoji are shown, and characters whose whole
// name or term is the query. All others are left out, also Han characters whose English meaning is the query:
// there are so many of them that they would hide other results.
bool isNamed(const Entity& entity, const SearchResult& result) {
  const auto codePoint = static_cast<char32_t>(entity.computed.decimal);
  const bool isMeaning =
      result.field == glyph::SearchField::annotation && glyph::characterFacts(codePoint).script == "Han";
  return glyph::emojiPlace(entity.computed.symbol).has_value() || (result.exact && !isMeaning);
}

}  // namespace

bool isScoped(std::string_view query) {
  return glyph::lowercased(glyph::trimmed(query).substr(0, scope.size())) == scope;
}

// If a setting cannot be read, the previous value is used until a later call can read it.
void CharacterSearch::readSettings() {
  std::string state = settingsState();
  if (search_ && state == settingsState_) return;
  const auto isRead = [](std::string_view key) { return !glyph::settingsStore()->readFailure(key); };
  const bool wholeCatalog = glyph::desktopSearchesCatalog();
  const bool scopeIsRead = isRead(glyph::desktopSearchesCatalogKey);
  if (scopeIsRead) wholeCatalog_ = wholeCatalog;

  constexpr std::string_view addedKey = glyph::UserInfluencedEntityKey::customAddedEntities.rawValue();
  if (!search_ || !search_->isCurrent()) {
    glyph::CatalogSearch fresh;
    if (!search_ || isRead(addedKey)) search_.emplace(std::move(fresh));
  }
  settingsState_.reset();
  if (scopeIsRead && isRead(addedKey)) settingsState_ = std::move(state);
}

std::optional<Entity> CharacterSearch::entity(std::string_view identifier) {
  readSettings();
  if (auto known = search_->entityOfHex(identifier)) return known;
  const auto item = indexes_.item(identifier);
  return item ? std::optional(entityOf(*item)) : std::nullopt;
}

std::vector<Found> CharacterSearch::find(std::string_view query, std::size_t limit) {
  if (query.size() > longestQuery) return {};
  readSettings();
  const Wanted wanted(query);
  std::vector<Found> found;
  std::unordered_set<std::string> seen;
  const auto add = [&](const std::string& identifier, Entity entity, Exactness exactness) {
    if (seen.insert(identifier).second) found.push_back({identifier, std::move(entity), exactness});
  };
  const std::size_t asked = wholeCatalog_ ? limit : std::max(limit, mostLookUps);
  glyph::SearchResults answer = search_->query(wanted.text, {asked, std::nullopt, {}});
  // Results that lack words of the query are guesses. They are dropped, because the desktop shows the
  // results of many programs.
  if (answer.lacksWords) answer.results.clear();
  for (const SearchResult& result : answer.results) {
    if (found.size() == limit) break;
    const Entity entity = search_->entity(result);
    const std::string& hex = entity.computed.hex;
    const bool isWanted = wholeCatalog_ && (search_->isInCatalog(result) || isNamed(entity, result));
    if (isWanted || search_->isOfUser(result) || indexes_.item(hex))
      add(hex, entity, exactnessOf(wanted, entity, result));
  }
  for (const glyph::SearchableItem& item : indexes_.search(query, static_cast<int>(limit))) {
    const Entity entity = entityOf(item);
    add(item.uniqueIdentifier, entity, exactnessOf(wanted, entity));
  }
  std::stable_partition(found.begin(), found.end(),
                        [](const Found& one) { return one.exactness != Exactness::part; });
  if (found.size() > limit) found.resize(limit);
  return found;
}

std::vector<Found> CharacterSearch::findMeant(std::string_view query, std::size_t limit) {
  if (isScoped(query)) return find(query, limit);
  const std::string_view wanted = glyph::trimmed(query);
  const bool direct = isFullCode(wanted) || isPastedCharacter(wanted);
  if (!direct && !isWords(wanted)) return {};
  if (isFullCode(wanted)) limit = std::min(limit, glyph::parseCodes(wanted).size());
  std::vector<Found> found = find(wanted, limit);
  std::erase_if(found, [&](const Found& one) {
    return one.exactness == Exactness::part || (!direct && isPrivateUse(one.entity));
  });
  const bool named = std::any_of(found.begin(), found.end(),
                                 [](const Found& one) { return one.exactness == Exactness::name; });
  std::size_t words = 0;
  std::erase_if(found, [&](const Found& one) {
    return one.exactness == Exactness::word && (named || ++words > mostByWord);
  });
  return found;
}

}  // namespace provider
