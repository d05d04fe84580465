// SPDX-License-Identifier: MIT
#include <algorithm>
#include <nlohmann/json.hpp>
#include <unordered_set>

#include "card.h"
#include "commands.h"
#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/services/settings/settings_store.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"
#include "lookup.h"

namespace cli {
namespace {

using Names = std::vector<std::string>;

using Key = glyph::UserInfluencedEntityKey;

// Returns whether the choice is stored. If not, prints the reason.
bool isSaved() {
  const bool saved = glyph::settingsStore()->synchronize();
  // Print the kept lines even after a success. One may say, for example, that a damaged settings file was
  // renamed.
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

void printAdded(Output& output, const Listing& listing) {
  const std::vector<glyph::Entity> added = addedEntities();
  std::vector<const glyph::Entity*> entities;
  for (const glyph::Entity& entity : added) entities.push_back(&entity);
  printEntities(output, entities, listing);
}

// Returns the hex code or hex list that is stored for an argument. The argument is a character, an emoji of
// several code points, or a code for one of these. Returns nullopt for any other argument.
std::optional<std::string> storedCode(const std::string& argument) {
  if (const auto codePoint = codePointOf(argument)) return glyph::toolKit().getHex(*codePoint);
  const std::u32string points = glyph::codePoints(argument);
  if (points.size() == 1) return glyph::toolKit().getHex(points.front());
  const ResolvedText resolved = resolve(argument);
  const bool isOne = resolved.characters.size() == 1 && !resolved.alternatives;
  const bool isEmoji = isOne && glyph::emojiPlace(resolved.characters.front().front().computed.symbol);
  return isEmoji ? std::optional<std::string>(resolved.characters.front().front().computed.hex)
                 : std::nullopt;
}

// Appends the codes of the arguments to `codes`, in the form that the catalog stores. Returns false, after an
// error message, if an argument is not a character.
bool readCodes(const Names& arguments, Names& codes) {
  for (const std::string& argument : arguments) {
    const auto code = storedCode(argument);
    if (!code) {
      complain("'" + argument +
               "' is not the code of a character; write 21d0, U+21D0 or the character itself");
      return false;
    }
    const std::string symbol = glyph::toolKit().getAdvancedSymbol(*code);
    const std::u32string points = glyph::codePoints(symbol);
    const bool isNamed = !glyph::toolKit().addNames({glyph::Unicode(*code).computedEntity()}).empty();
    if (!isNamed && points.size() == 1 &&
        glyph::characterStatus(points.front()) != glyph::CharacterStatus::assigned) {
      complain("'" + argument + "' is no character but " + glyph::characterNameOrLabel(points.front()));
      return false;
    }
    codes.push_back(*code);
  }
  return true;
}

}  // namespace

bool isReadable(Key key) {
  const auto store = glyph::settingsStore();
  if (const auto failure = store->readFailure(key.rawValue())) {  // if configure() could not read the list
    complainOfFailure(*failure);
    return false;
  }
  const auto value = store->object(key.rawValue());
  if (!value || std::holds_alternative<Names>(*value)) return true;
  complain("the stored setting '" + std::string(key.rawValue()) + "' is damaged: it is not a list of texts");
  return false;
}

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
  printAdded(output, {});
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
    // A text that is stored exactly like this can be removed, even if it is not a valid code.
    const bool asStored = known.contains(glyph::lowercased(argument));
    const auto parsed = storedCode(argument);
    const std::string code = asStored || !parsed ? argument : *parsed;
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
  printAdded(output, {});
  return found;
}

int listAdded(Output& output, const Listing& listing) {
  glyph::glyphorium().configure();
  if (!isReadable(Key::customAddedEntities)) return notWritten;
  printAdded(output, listing);
  return addedEntities().empty() ? nothingFound : found;
}

}  // namespace cli
