// SPDX-License-Identifier: MIT
#include <algorithm>
#include <nlohmann/json.hpp>
#include <unordered_set>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/data/name_table.h"
#include "glyphorium/services/settings/settings_store.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using Names = std::vector<std::string>;

using Key = glyph::UserInfluencedEntityKey;

// Returns whether the list stored under the key could be read. If not, prints the reason: the user must not
// mistake the default list for the stored list.
bool isReadable(Key key) {
  const auto store = glyph::settingsStore();
  if (const auto failure = store->readFailure(key.rawValue())) {  // why the catalog could not read it
    complainOfFailure(*failure);
    return false;
  }
  const auto value = store->object(key.rawValue());
  if (!value || std::holds_alternative<Names>(*value)) return true;
  complain("the stored setting '" + std::string(key.rawValue()) + "' is damaged: it is not a list of texts");
  return false;
}

// Returns whether the choice is stored. If not, prints the reason.
bool isSaved() {
  const bool saved = glyph::settingsStore()->synchronize();
  // There may be lines to print even after a success, for example that a damaged file was quarantined.
  complainOfFailure(saved ? "" : "the choice could not be saved");
  return saved;
}

void printDisplayed(Output& output, bool json) {
  const auto& counts = glyph::glyphorium().allEntityGroupNamesWithCount.get();
  Names objects;
  std::vector<Names> rows;
  for (const std::string& stored : glyph::glyphorium().selectedGroups()) {
    const std::string group = groupNamed(stored).value_or(stored);
    const auto place = counts.find(group);
    const std::int64_t count = place == counts.end() ? 0 : place->second;
    objects.push_back(nlohmann::ordered_json{{"name", group}, {"count", count}}.dump());
    rows.push_back({group, output.faint(std::to_string(count))});
  }
  json ? printJsonArray(output, objects) : output.printTable(rows);
}

void printAdded(Output& output, bool json) {
  std::vector<const glyph::Entity*> entities;
  for (const glyph::Entity& entity : glyph::glyphorium().allCustomEntities) entities.push_back(&entity);
  printEntities(output, entities, json);
}

// Returns the end of a message: the code points before and after `codePoint` that have a name and are closest
// to it. Empty if there are no such code points nearby.
std::string nearestCodes(char32_t codePoint) {
  Names near;
  for (const int step : {-1, 1}) {
    for (std::int64_t distance = 1; distance < 0x400; ++distance) {
      const std::string hex = glyph::toolKit().getHex(static_cast<std::int64_t>(codePoint) + step * distance);
      const auto entry = glyph::findName(hex);
      if (!entry || entry->name.starts_with('<')) continue;
      near.push_back(hex + " (" + std::string(entry->name) + ")");
      break;
    }
  }
  if (near.empty()) return {};
  return "; the nearest that do are " + near.front() + (near.size() > 1 ? " and " + near.back() : "");
}

// Returns the code point of an argument that is a single code point or a code. Otherwise returns nullopt.
std::optional<char32_t> codeOrCharacter(const std::string& argument) {
  const std::u32string points = glyph::codePoints(argument);
  return points.size() == 1 ? std::optional(points.front()) : codePointOf(argument);
}

// Appends the codes of the arguments to `codes`, in the form that the catalog stores. Returns false, after an
// error message, if an argument is not a character.
bool readCodes(const Names& arguments, Names& codes) {
  for (const std::string& argument : arguments) {
    const auto codePoint = codeOrCharacter(argument);
    if (!codePoint) {
      complain("'" + argument +
               "' is no code of a character; right would be 21d0, U+21D0 or the character itself");
      return false;
    }
    const std::string hex = glyph::toolKit().getHex(*codePoint);
    if (glyph::toolKit().addNames({glyph::Unicode(hex).computedEntity()}).empty()) {
      complain("'" + argument + "' names no character of Unicode 13.0" + nearestCodes(*codePoint));
      return false;
    }
    codes.push_back(hex);
  }
  return true;
}

}  // namespace

int displayGroups(Output& output, Choice choice, const Names& groups, bool json) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  const bool needed = choice == Choice::show || choice == Choice::remove;
  if (needed && !isReadable(Key::displayedGroups)) return notWritten;
  const Names displayed = catalog.selectedGroups();
  const auto isDisplayed = [&](const std::string& name) {
    return std::any_of(displayed.begin(), displayed.end(),
                       [&](auto& one) { return glyph::lowercased(one) == glyph::lowercased(name); });
  };
  Names names;
  for (const std::string& name : groups) {
    const auto group = groupNamed(name);
    if (!group && !(choice == Choice::remove && isDisplayed(name))) {
      complain(unknownGroup(name));
      return wrongUse;
    }
    if (choice == Choice::remove && !isDisplayed(name)) {
      complain("the group '" + name + "' is not displayed; 'glyphorium display' lists those that are");
      return nothingFound;
    }
    names.push_back(group.value_or(name));
  }
  if (choice == Choice::set) catalog.setSelectedGroups(names);
  for (const std::string& name : names) {
    if (choice == Choice::add) catalog.addSelectedGroup(name);
    if (choice == Choice::remove) catalog.removeSelectedGroup(name);
  }
  if (choice != Choice::show && !isSaved()) return notWritten;
  printDisplayed(output, json);
  return found;
}

int addCharacters(Output& output, const Names& arguments) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  Names codes;
  if (!readCodes(arguments, codes)) return wrongUse;
  catalog.addCustomAddedEntities(codes);
  if (!isSaved()) return notWritten;
  printAdded(output, false);
  return found;
}

int removeCharacters(Output& output, const Names& arguments) {
  glyph::Glyphorium& catalog = glyph::glyphorium();
  catalog.configure();
  if (!isReadable(Key::customAddedEntities)) return notWritten;
  Names codes;
  const Names added = catalog.customAddedEntityUnicodes();
  const std::unordered_set<std::string> known(added.begin(), added.end());
  for (const std::string& argument : arguments) {
    // The user can remove any stored code by its stored spelling, even a code that is not valid.
    const bool asStored = known.contains(glyph::lowercased(argument));
    const auto codePoint = codeOrCharacter(argument);
    const std::string code = asStored || !codePoint ? argument : glyph::toolKit().getHex(*codePoint);
    if (!known.contains(glyph::lowercased(code))) {
      const Names near = nearestTexts(code, added);
      complain("'" + argument + "' is not among the added characters" +
               (near.empty() ? std::string() : "; did you mean '" + near.front() + "'?"));
      return nothingFound;
    }
    codes.push_back(code);
  }
  catalog.removeCustomAddedEntities(codes);
  if (!isSaved()) return notWritten;
  printAdded(output, false);
  return found;
}

int listAdded(Output& output, bool json) {
  glyph::glyphorium().configure();
  if (!isReadable(Key::customAddedEntities)) return notWritten;
  printAdded(output, json);
  return glyph::glyphorium().allCustomEntities.empty() ? nothingFound : found;
}

}  // namespace cli
