// SPDX-License-Identifier: MIT
#include "lookup.h"

#include <unicode/uchar.h>
#include <unicode/uset.h>

#include <algorithm>
#include <charconv>
#include <system_error>

#include "glyphorium/catalog/glyphorium.h"
#include "glyphorium/characters/annotations.h"
#include "glyphorium/characters/characters.h"
#include "glyphorium/characters/emoji.h"
#include "glyphorium/characters/names.h"
#include "glyphorium/characters/supplement.h"
#include "glyphorium/characters/typing.h"
#include "glyphorium/codes/code_parsing.h"
#include "glyphorium/search/search.h"
#include "glyphorium/text/preferred_languages.h"
#include "glyphorium/text/text_pieces.h"
#include "glyphorium/text/unicode_text.h"
#include "glyphorium/toolkit/entity_tool_kit.h"

namespace cli {
namespace {

using glyph::CharacterProperty;
using glyph::CodePointRange;
using glyph::Entity;

constexpr std::string_view variationSelector = "\uFE0F";

Character emojiCharacter(std::size_t place) {
  return {glyph::supplementEntity(glyph::emojiAt(place).text)};
}

// If the text is an emoji of more than one code point, returns its index (see emojiPlace()). Otherwise
// returns nullopt.
std::optional<std::size_t> placeOfSequence(std::string_view text) {
  const auto place = glyph::emojiPlace(text);
  return place && glyph::emojiAt(*place).kind != "single" ? place : std::nullopt;
}

// Returns the index (see emojiPlace()) of the emoji with this shortcode, or with this name in English or in
// one of the user's languages.
std::optional<std::size_t> emojiNamed(std::string_view text) {
  const std::string wanted = glyph::lowercased(text);
  if (wanted.empty()) return std::nullopt;
  std::vector<std::string> languages = glyph::preferredLanguages();
  languages.emplace_back("en");
  for (std::size_t place = 0; place < glyph::emojiCount(); ++place) {
    const std::string_view emoji = glyph::emojiAt(place).text;
    if (wanted.front() == ':') {
      for (const glyph::WayToType& way : glyph::waysToType(emoji)) {
        if (way.method == "shortcode" && way.text == wanted) return place;
      }
      continue;
    }
    for (const std::string& language : languages) {
      if (glyph::lowercased(glyph::annotationOf(emoji, language).name) == wanted) return place;
    }
  }
  return std::nullopt;
}

Character characterOfCodePoint(char32_t codePoint) {
  return {entityOfCodePoint(codePoint)};
}

// Returns the code point that a code stands for. Also reads codes that glyph::resolve() does not accept:
// "U+D800", "d800", "0o20622", "0b10000110010010".
std::optional<char32_t> anyCode(std::string_view text) {
  for (const auto& [prefix, base] : {std::pair<std::string_view, int>{"0o", 8}, {"0b", 2}}) {
    std::uint32_t number = 0;
    if (!text.starts_with(prefix)) continue;
    const auto [end, fault] =
        std::from_chars(text.data() + prefix.size(), text.data() + text.size(), number, base);
    if (fault == std::errc() && end == text.data() + text.size() && number <= 0x10FFFF) return number;
  }
  const std::string bare = text.size() >= 4 ? "U+" + std::string(text) : std::string();
  for (const std::string& form : {std::string(text), bare}) {
    const std::vector<glyph::ParsedCode> codes = glyph::parseCodes(form);
    if (codes.size() == 1 && codes.front().htmlName.empty() && codes.front().codePoint <= 0x10FFFF)
      return codes.front().codePoint;
  }
  return std::nullopt;
}

// Converts a list of hex codes, each with four digits or more, to a text: "1f1e9 1f1ea", "1F1E9,1F1EA", or
// "1f1e9-1f1ea" as in names of files. Empty if `list` is anything else.
std::string textOfCodes(std::string_view list) {
  std::string text;
  while (!list.empty()) {
    const std::size_t end = std::min(list.find_first_of(" ,-"), list.size());
    const auto code = end < 4 ? std::nullopt : codePointOf("U+" + std::string(list.substr(0, end)));
    if (!code) return {};
    text += glyph::utf8(*code);
    list.remove_prefix(std::min(end + 1, list.size()));
  }
  return text;
}

std::optional<Character> outsideTheTables(std::string_view argument) {
  if (const auto code = anyCode(argument)) return characterOfCodePoint(*code);
  if (const auto codePoint = glyph::characterNamed(argument)) return characterOfCodePoint(*codePoint);
  if (const auto place = emojiNamed(argument)) {
    const glyph::Emoji emoji = glyph::emojiAt(*place);
    if (emoji.kind == "single") return characterOfCodePoint(glyph::codePoints(emoji.text).front());
    return emojiCharacter(*place);
  }
  return std::nullopt;
}

// Reads "2190..2193", "U+2190..U+2193" and "U+2190-U+2193".
std::optional<CodePointRange> rangeOf(std::string_view argument) {
  const std::string_view between = argument.find("..") != std::string_view::npos ? ".." : "-";
  const std::size_t place = argument.find(between);
  if (place == std::string_view::npos) return std::nullopt;
  // Without "U+", codes with a hyphen between them may be the file name of an emoji: "1f1e9-1f1ea".
  if (between == "-" && !argument.starts_with("U+") && !argument.starts_with("u+")) return std::nullopt;
  const auto first = anyCode(argument.substr(0, place));
  const auto last = anyCode(argument.substr(place + between.size()));
  if (!first || !last || *last < *first) return std::nullopt;
  return CodePointRange{*first, *last};
}

struct PropertyName {
  std::string_view prefix;
  CharacterProperty property;
};
constexpr PropertyName propertyNames[] = {{"block:", CharacterProperty::block},
                                          {"script:", CharacterProperty::script},
                                          {"category:", CharacterProperty::category},
                                          {"age:", CharacterProperty::version}};

const PropertyName* propertyOf(std::string_view argument) {
  const auto found = std::find_if(
      std::begin(propertyNames), std::end(propertyNames),
      [&](const PropertyName& one) { return glyph::lowercased(argument).starts_with(one.prefix); });
  return found == std::end(propertyNames) ? nullptr : found;
}

constexpr std::string_view binaryPrefix = "property:";

// Returns the characters that have a property which is either true or false, such as "White_Space".
std::vector<CodePointRange> charactersWithBinary(const std::string& name) {
  std::vector<CodePointRange> ranges;
  UErrorCode status = U_ZERO_ERROR;
  const USet* const set = u_getBinaryPropertySet(u_getPropertyEnum(name.c_str()), &status);
  if (U_FAILURE(status)) return ranges;  // it has no such property
  for (int32_t i = 0; i < uset_getItemCount(set); ++i) {
    UChar32 first = 0, last = 0;
    // The last items of some sets are texts of several characters, which are left out.
    if (uset_getItem(set, i, &first, &last, nullptr, 0, &status) != 0 || U_FAILURE(status)) break;
    ranges.push_back({static_cast<char32_t>(first), static_cast<char32_t>(last)});
  }
  return ranges;
}

std::vector<Entity> emojiOfGroup(std::string_view word) {
  std::vector<Entity> entities;
  for (std::size_t place = 0; place < glyph::emojiCount(); ++place) {
    const glyph::Emoji emoji = glyph::emojiAt(place);
    const std::string group = glyph::lowercased(std::string(emoji.group) + " " + std::string(emoji.subgroup));
    if (glyph::emojiBase(place) != place || group.find(word) == std::string::npos) continue;
    const bool isSingle = emoji.kind == "single";
    entities.push_back(isSingle ? entityOfCodePoint(glyph::codePoints(emoji.text).front())
                                : glyph::supplementEntity(emoji.text));
  }
  return entities;
}

}  // namespace

Entity entityOfCodePoint(char32_t codePoint) {
  if (glyph::utf8(codePoint).empty()) return glyph::supplementEntity(codePoint);
  return glyph::withSupplementName(glyph::entityOf(codePoint));
}

std::vector<Entity> addedEntities() {
  std::vector<Entity> entities;
  const std::vector<Entity>& known = glyph::glyphorium().allCustomEntities;
  for (const std::string& code : glyph::glyphorium().customAddedEntityUnicodes()) {
    const auto place = std::find_if(known.begin(), known.end(),
                                    [&](const Entity& entity) { return entity.computed.hex == code; });
    if (place != known.end()) {
      entities.push_back(*place);
      continue;
    }
    Entity entity = glyph::supplementEntity(glyph::toolKit().getAdvancedSymbol(code));
    if (entity.name().empty()) continue;
    entity.computed.group = std::string(glyph::customGroup);
    entities.push_back(std::move(entity));
  }
  return entities;
}

ResolvedText resolve(std::string_view argument) {
  if (const auto place = placeOfSequence(argument)) return {{emojiCharacter(*place)}, false};
  // Do not list the variation selector at the end of an emoji as a character: it only selects the coloured
  // form of the emoji.
  if (glyph::emojiPlace(argument) && argument.ends_with(variationSelector))
    argument.remove_suffix(variationSelector.size());
  ResolvedText resolved = glyph::resolve(argument);
  if (resolved.characters.empty()) {
    if (auto character = outsideTheTables(argument)) return {{*std::move(character)}, false};
    const std::string codes = textOfCodes(argument);
    const std::vector<std::string_view> clusters = glyph::graphemeClusters(codes.empty() ? argument : codes);
    const bool areSigns =
        !codes.empty() ||
        (clusters.size() > 1 && std::all_of(clusters.begin(), clusters.end(), [](std::string_view cluster) {
           return static_cast<unsigned char>(cluster.front()) >= 0x80;
         }));
    if (!areSigns) return resolved;
    for (const std::string_view cluster : clusters) {
      for (Character& character : resolve(cluster).characters)
        resolved.characters.push_back(std::move(character));
    }
    return resolved;
  }
  std::string text;
  for (Character& character : resolved.characters) {
    for (Entity& entity : character) entity = glyph::withSupplementName(std::move(entity));
    text += character.front().computed.symbol;
  }
  if (!resolved.alternatives && resolved.characters.size() > 1) {
    if (const auto place = placeOfSequence(text)) return {{emojiCharacter(*place)}, false};
  }
  return resolved;
}

std::optional<std::vector<Entity>> charactersOfSet(std::string_view argument) {
  std::vector<CodePointRange> ranges;
  const std::string lower = glyph::lowercased(argument);
  if (lower == "emoji") return emojiOfGroup("");
  if (lower.starts_with("emoji:")) return emojiOfGroup(lower.substr(6));
  if (lower.starts_with(binaryPrefix)) {
    ranges = charactersWithBinary(lower.substr(binaryPrefix.size()));
  } else if (const PropertyName* const property = propertyOf(argument)) {
    ranges = glyph::charactersWith(property->property, argument.substr(property->prefix.size()));
  } else if (const auto range = rangeOf(argument)) {
    ranges.push_back(*range);
  } else {
    return std::nullopt;
  }
  std::vector<Entity> entities;
  for (const auto [first, last] : ranges) {
    for (char32_t codePoint = first; codePoint <= last; ++codePoint)
      entities.push_back(entityOfCodePoint(codePoint));
  }
  return entities;
}

std::vector<std::string> binaryProperties() {
  std::vector<std::string> names;
  for (int one = UCHAR_BINARY_START; one < UCHAR_BINARY_LIMIT; ++one) {
    const char* const name = u_getPropertyName(static_cast<UProperty>(one), U_LONG_PROPERTY_NAME);
    if (name) names.emplace_back(name);
  }
  return names;
}

std::string unknownSet(const std::string& argument) {
  const PropertyName* const property = propertyOf(argument);
  const bool isBinary = glyph::lowercased(argument).starts_with(binaryPrefix);
  if (!property && !isBinary) return "no character is in '" + argument + "'";
  std::vector<std::string> values = isBinary ? binaryProperties() : std::vector<std::string>();
  if (property) {
    for (const std::string_view value : glyph::valuesOf(property->property)) values.emplace_back(value);
  }
  const std::string prefix(isBinary ? binaryPrefix : property->prefix);
  const std::vector<std::string> near = nearestTexts(argument.substr(prefix.size()), values);
  return "no character is in '" + argument + "'" +
         (near.empty() ? "" : "; did you mean '" + prefix + glyph::joined(near, "' or '" + prefix) + "'?");
}

std::string unknownCharacter(const std::string& argument) {
  const auto found = glyph::Search::ofCatalog().query(argument, {1, std::nullopt, {}}).results;
  std::string message = "no character is '" + argument + "'";
  if (found.empty()) return message;
  const glyph::Entity nearest = *glyph::buildInEntity(found.front().index);
  return message + "; did you mean " + nearest.computed.hex + " (" + nearest.name() + ")?";
}

std::string unknownGroup(std::string_view name) {
  const std::string message = "there is no group '" + std::string(name) + "'; ";
  const std::vector<std::string> names = nearestTexts(name, glyph::groupNames());
  if (names.empty()) return message + "'glyphorium groups' lists them";
  return message + "did you mean '" + glyph::joined(names, "' or '") + "'?";
}

}  // namespace cli
